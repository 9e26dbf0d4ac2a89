#pragma once

#include "cls_control_item.h"
#include "host_control.h"

#include <functional>
#include <memory>
#include <vector>

class Igrid;

// The control items of one form, and what is asked about its controls.
class FormItems {
  public:
    // controls is read until UserControl_Terminate.
    FormItems(const HostControls &controls, const FieldServices &services,
              std::function<HostControl *()> activeControl);

    // An item for each control that is a field, in the form's order; earlier items end.
    void AccessControls(const std::shared_ptr<ctlFormEnabler> &enabler);
    void UserControl_Terminate();
    // The item of the field with the focus; null when there is none.
    [[nodiscard]] ControlItemPtr Ienabler_GetActiveControl();

    // Copies to walk over, since a call into the component may close the form. An item of the walk may be terminated
    // meanwhile: ask it.
    [[nodiscard]] std::vector<ControlItemPtr> all() const { return mcolControlItems; }
    [[nodiscard]] std::vector<ControlItemPtr> ofType(FieldType type) const;
    // The navigators whose GridControl names this grid; matched by the grids' ids.
    [[nodiscard]] std::vector<ControlItemPtr> navigatorsOf(const Igrid &grid) const;
    // The grid that a navigator's GridControl names; null when it names none.
    [[nodiscard]] Igrid *gridOf(const clsControlItem &navigator) const;

    // All controls of the form; none after UserControl_Terminate.
    [[nodiscard]] const HostControls &controls() const;

  private:
    const HostControls *mControls;
    FieldServices mServices;
    ErrorReport &mErrors;
    std::function<HostControl *()> mActiveControl;
    std::vector<ControlItemPtr> mcolControlItems;
};

// The control as a field; null where it is none or where asking it fails.
[[nodiscard]] Ifield *fieldOf(const HostControl *control);
