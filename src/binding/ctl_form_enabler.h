#pragma once

#include "cls_control_item.h"
#include "component_updates.h"
#include "edit_notifications.h"
#include "edit_state.h"
#include "field_initialisation.h"
#include "focus_notifications.h"
#include "form_focus.h"
#include "form_initialisation.h"
#include "form_items.h"
#include "form_report.h"
#include "form_validation.h"
#include "frame_contents.h"
#include "grid_queries.h"
#include "grid_records.h"
#include "host_control.h"
#include "ienabler.h"
#include "navigator_moves.h"
#include "navigator_records.h"
#include "value_reverts.h"
#include "window_services.h"

#include <functional>
#include <memory>

// The one thing on a form that speaks to the component: fills the fields, commits what the user edits, and shows what
// the component changes. A front: each concern has its own class, these are forwards.
//
// Made with std::make_shared, before or after the form's controls; all calls on one thread. The references in services
// outlive it. controls is read until UserControl_Terminate, which the form calls before its controls go.
class ctlFormEnabler final : public Ienabler, public std::enable_shared_from_this<ctlFormEnabler> {
  public:
    // activeControl: the form's control with the focus, or null.
    ctlFormEnabler(const HostControls &controls, const FieldServices &services,
                   std::function<HostControl *()> activeControl);
    ~ctlFormEnabler() override;
    ctlFormEnabler(const ctlFormEnabler &) = delete;
    ctlFormEnabler &operator=(const ctlFormEnabler &) = delete;

    // Stored with the form.
    qint32 HelpID = 0;
    QString Caption = QStringLiteral("Frame1"); // of the enabler's own frame at design time, never drawn

    // Makes the items of the form's fields. Called once, when all its controls stand.
    void AccessControls() { mItems.AccessControls(shared_from_this()); }
    // Gives the first focus; called when the form is made visible.
    void UserControl_Show() { mFocus.UserControl_Show(); }
    // Ends all items: no event reaches a field and no field an event any more.
    void UserControl_Terminate() { mItems.UserControl_Terminate(); }

    void InitialiseField(const ControlItemPtr &item) { mFields.InitialiseField(item); }
    QVariant SetFieldLabel(const ControlItemPtr &item) { return mFields.SetFieldLabel(item); }
    QVariant SetNavFieldLabel(const ControlItemPtr &item) { return mFields.SetNavFieldLabel(item); }
    void SetEnabledProperty(const ControlItemPtr &item) { mFields.SetEnabledProperty(item); }
    void PopulateGrid(const ControlItemPtr &item) { mFields.PopulateGrid(item); }
    void GetFieldsInFrame(const HostControl &Frame, QStringList &colUIID) { mFrames.GetFieldsInFrame(Frame, colUIID); }
    bool FrameHasVisibleFields(const HostControl &Frame) { return mFrames.FrameHasVisibleFields(Frame); }

    void Notify_Change(const ControlItemPtr &item) { mEdits.Notify_Change(item); }
    void Notify_Click(const ControlItemPtr &item) { mEdits.Notify_Click(item); }
    void Notify_Validate(const ControlItemPtr &item, bool &Cancel) { mEdits.Notify_Validate(item, Cancel); }
    void Notify_ManualValidate(const ControlItemPtr &item, const FieldEvent &event) {
        mEdits.Notify_ManualValidate(item, event);
    }
    void Notify_Escape(const ControlItemPtr &item) { mReverts.Notify_Escape(item); }
    void RevertControl(const ControlItemPtr &item) { mReverts.RevertControl(item); }
    void Notify_GotFocus(const ControlItemPtr &item) { mFocusEvents.Notify_GotFocus(item); }
    void Notify_ExitFocus(const ControlItemPtr &item) { mFocusEvents.Notify_ExitFocus(item); }
    void Notify_LostFocus(const ControlItemPtr &item) { mFocusEvents.Notify_LostFocus(item); }
    void Notify_Initialise(const ControlItemPtr &item) { mFocusEvents.Notify_Initialise(item); }
    void Notify_TabToNextField(const ControlItemPtr & /*item*/) {}
    bool Notify_ValidateForm() { return mValidation.Notify_ValidateForm(); }
    void Notify_GetFieldsInFrame(const ControlItemPtr &item, const FieldEvent &event) {
        mFrames.Notify_GetFieldsInFrame(item, event);
    }

    void Notify_ChangedPosition(const ControlItemPtr &item) { mMoves.Notify_ChangedPosition(item); }
    void Notify_ChangedPositionStorage(const ControlItemPtr &item, const FieldEvent &event) {
        mMoves.Notify_ChangedPositionStorage(item, event);
    }
    void Notify_RowSelectionChanged(const ControlItemPtr &item, const FieldEvent &event) {
        mMoves.Notify_RowSelectionChanged(item, event);
    }
    void Notify_AddRecordNavigator(const ControlItemPtr &item, const FieldEvent &event) {
        mNavigatorRecords.Notify_AddRecordNavigator(item, event);
    }
    void Notify_InsertRecordNavigator(const ControlItemPtr &item, const FieldEvent &event) {
        mNavigatorRecords.Notify_InsertRecordNavigator(item, event);
    }
    void Notify_RepeatRecordNavigator(const ControlItemPtr &item, const FieldEvent &event) {
        mNavigatorRecords.Notify_RepeatRecordNavigator(item, event);
    }
    void Notify_DeleteRecordNavigator(const ControlItemPtr &item, const FieldEvent &event) {
        mNavigatorRecords.Notify_DeleteRecordNavigator(item, event);
    }

    void Notify_AddRecord(const ControlItemPtr &item) { mGridRecords.Notify_AddRecord(item); }
    void Notify_InsertRecord(const ControlItemPtr &item) { mGridRecords.Notify_InsertRecord(item); }
    void Notify_RepeatRecord(const ControlItemPtr &item) { mGridRecords.Notify_RepeatRecord(item); }
    void Notify_DeleteRecord(const ControlItemPtr &item, const FieldEvent &event) {
        mGridRecords.Notify_DeleteRecord(item, event);
    }
    void Notify_ImportRecordByPaste(const ControlItemPtr &item, const FieldEvent &event) {
        mGridRecords.Notify_ImportRecordByPaste(item, event);
    }
    void Notify_ImportRecordByDrop(const ControlItemPtr &item, const FieldEvent &event) {
        mGridRecords.Notify_ImportRecordByDrop(item, event);
    }
    void Notify_SortColumnByUIID(const ControlItemPtr &item, const FieldEvent &event) {
        mGridRecords.Notify_SortColumnByUIID(item, event);
    }

    void Notify_GetComboItems(const ControlItemPtr & /*item*/, const FieldEvent &event) {
        mQueries.Notify_GetComboItems(event);
    }
    void Notify_GetIDItems(const ControlItemPtr & /*item*/, const FieldEvent &event) {
        mQueries.Notify_GetIDItems(event);
    }
    void Notify_GetValidationString(const ControlItemPtr &item, const FieldEvent &event) {
        mQueries.Notify_GetValidationString(item, event);
    }
    void Notify_GetLabel(const ControlItemPtr & /*item*/, const FieldEvent &event) { mQueries.Notify_GetLabel(event); }
    void Notify_SetProviderUpdateUIOnFieldChange(bool blnNewVal) {
        mQueries.Notify_SetProviderUpdateUIOnFieldChange(blnNewVal);
    }

    void Ienabler_RevertCurrentField() override { mReverts.Ienabler_RevertCurrentField(); }
    void Ienabler_ForceSaveToCurrentField() override { mEdits.Ienabler_ForceSaveToCurrentField(); }
    void Ienabler_RefreshGridByUIID(const QString &UIID) override { mUpdates.Ienabler_RefreshGridByUIID(UIID); }
    QString Ienabler_GetUIIDOfFieldWithFocus() override { return mFocus.Ienabler_GetUIIDOfFieldWithFocus(); }
    void Ienabler_SetEnableDisableByUIID(const QString &UIID, bool Enabled) override {
        mUpdates.Ienabler_SetEnableDisableByUIID(UIID, Enabled);
    }
    void Ienabler_ClearWhatsThisHelpIDs() override { mFocus.Ienabler_ClearWhatsThisHelpIDs(); }
    void Ienabler_SetWhatsThisHelpIDs() override { mFocus.Ienabler_SetWhatsThisHelpIDs(); }
    bool Ienabler_OKToLeaveForm() override { return mState.mblnOKToLeaveForm; }
    std::shared_ptr<clsControlItem> Ienabler_GetActiveControl() override { return mItems.Ienabler_GetActiveControl(); }
    qint32 Ienabler_HelpContextID() override { return HelpID; }
    void Ienabler_InitialiseFields(qint32 lngRecordNr) override { mForm.Ienabler_InitialiseFields(lngRecordNr); }
    bool Ienabler_PrintForm(Iusrfrm &form, const QString &title, ReportLines &printDialog, bool printAll) override {
        return mReport.Ienabler_PrintForm(form, title, printDialog, printAll);
    }
    qint32 Ienabler_TextAlignment() override { return mServices.shell.TextAlignment(); }
    void Ienabler_UIIDNotFound(const QString &UIID) override { mUpdates.Ienabler_UIIDNotFound(UIID); }
    void Ienabler_UpdateUIFieldByUIID(const QString &UIID, qint32 RecordNr, const QVariant &Value) override {
        mUpdates.Ienabler_UpdateUIFieldByUIID(UIID, RecordNr, Value);
    }
    bool Ienabler_ValidateForm(bool blnClosingForm) override {
        return mValidation.Ienabler_ValidateForm(blnClosingForm);
    }

  private:
    FieldServices mServices;
    FormItems mItems;
    EditState mState;
    FieldInitialisation mFields;
    FrameContents mFrames;
    FormInitialisation mForm;
    FormFocus mFocus;
    FormValidation mValidation;
    EditNotifications mEdits;
    FocusNotifications mFocusEvents;
    ValueReverts mReverts;
    NavigatorMoves mMoves;
    NavigatorRecords mNavigatorRecords;
    GridRecords mGridRecords;
    GridQueries mQueries;
    ComponentUpdates mUpdates;
    FormReport mReport;
};
