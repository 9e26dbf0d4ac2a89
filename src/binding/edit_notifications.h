#pragma once

#include "cls_control_item.h"
#include "edit_state.h"
#include "enabler_part.h"

#include <QVariant>

// Carries the user's edits to the component. A text commits when it is validated; a list, check or slider on each
// change; a grid's cell by its own type. The component tells the user why it refuses a value; nothing is said here.
class EditNotifications : private EnablerPart {
  public:
    EditNotifications(FormItems &items, const FieldServices &services, EditState &state);

    // A refused value springs back to the component's.
    void Notify_Change(const ControlItemPtr &item);
    void Notify_Click(const ControlItemPtr &item);
    // The commit of a text and the last check of everything else: writes the value if it differs from the component's.
    // Cancel true: refused; the field keeps what the user typed, and the focus. It stays as it came where nothing is
    // written, and is false where the form was closed meanwhile.
    void Notify_Validate(const ControlItemPtr &item, bool &Cancel);
    void Notify_ManualValidate(const ControlItemPtr &item, const FieldEvent &event);
    void Ienabler_ForceSaveToCurrentField();

  private:
    struct ChangeRule;
    static const ChangeRule kChangeRules[];

    // What Notify_Change does by type.
    void markChanged(const ControlItemPtr &item);
    void changeCell(const ControlItemPtr &item);
    void writeChange(const ControlItemPtr &item);

    void forceSave(const ControlItemPtr &item);
    [[nodiscard]] QVariant storedValue(const ControlItemPtr &item) const;
    // Writes the field's value; true unless the component refused it.
    [[nodiscard]] bool write(const ControlItemPtr &item, const QVariant &value);
    [[nodiscard]] bool sameText(const QVariant &left, const QVariant &right) const;

    EditState &mState;
};
