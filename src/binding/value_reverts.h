#pragma once

#include "cls_control_item.h"
#include "edit_state.h"
#include "enabler_part.h"

// Takes back what the user did to one field.
class ValueReverts : private EnablerPart {
  public:
    ValueReverts(FormItems &items, const FieldServices &services, EditState &state);

    void Notify_Escape(const ControlItemPtr &item);
    // A text shows the component's value again; a list or check field has its value on entry written back to the
    // component, nothing if there is none; a grid reverts its cell.
    void RevertControl(const ControlItemPtr &item);
    void Ienabler_RevertCurrentField();

  private:
    struct RevertRule;
    static const RevertRule kRevertRules[];

    void showStored(const ControlItemPtr &item);
    void writeOriginal(const ControlItemPtr &item);
    void revertCell(const ControlItemPtr &item);

    EditState &mState;
};
