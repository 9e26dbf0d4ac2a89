#include "ctl_form_enabler.h"

#include <utility>

ctlFormEnabler::ctlFormEnabler(const HostControls &controls, const FieldServices &services,
                               std::function<HostControl *()> activeControl)
    : mServices(services), mItems(controls, services, std::move(activeControl)), mFields(mItems, services),
      mFrames(mItems, services), mForm(mItems, services, mFields, mFrames), mFocus(mItems, services),
      mValidation(mItems, services), mEdits(mItems, services, mState), mFocusEvents(mItems, services, mState, mFields),
      mReverts(mItems, services, mState), mMoves(mItems, services, mFields, mValidation),
      mNavigatorRecords(mItems, services, mFields), mGridRecords(mItems, services, mFields, mNavigatorRecords),
      mQueries(mItems, services), mUpdates(mItems, services, mFields), mReport(mItems, services) {}

// For a form that is destroyed without having been closed: a field may outlive the host that its item refers to.
ctlFormEnabler::~ctlFormEnabler() { mItems.UserControl_Terminate(); }
