#pragma once

#include "cls_control_item.h"
#include "edit_state.h"
#include "enabler_part.h"

class FieldInitialisation;

// What happens when a field gets or loses the focus.
class FocusNotifications : private EnablerPart {
  public:
    FocusNotifications(FormItems &items, const FieldServices &services, EditState &state, FieldInitialisation &fields);

    // Keeps the value on entry of list and check fields; an ID tracker's list is filled anew.
    void Notify_GotFocus(const ControlItemPtr &item);
    // A slider's final value.
    void Notify_ExitFocus(const ControlItemPtr &item);
    void Notify_LostFocus(const ControlItemPtr &item);
    // Fills the field anew, unless the form is being filled.
    void Notify_Initialise(const ControlItemPtr &item);

  private:
    struct EntryRule;
    static const EntryRule kEntryRules[];

    void keepOriginal(const ControlItemPtr &item);
    void keepOriginalAndRefill(const ControlItemPtr &item);
    void enterSlider(const ControlItemPtr &item);

    EditState &mState;
    FieldInitialisation &mFields;
};
