#include "edit_notifications.h"

#include "common_error_handler.h"
#include "form_items.h"
#include "ifield.h"
#include "process_values.h"
#include "shown_value.h"
#include "string_utilities.h"
#include "transformer.h"
#include "translation.h"
#include "value_text.h"

#include <algorithm>

struct EditNotifications::ChangeRule {
    FieldType type;
    void (EditNotifications::*apply)(const ControlItemPtr &);
};

// A type that is not here has no changes of its own: a navigator, a frame.
const EditNotifications::ChangeRule EditNotifications::kChangeRules[] = {
    {FieldType::Text, &EditNotifications::markChanged},      {FieldType::Combo, &EditNotifications::writeChange},
    {FieldType::IdTracker, &EditNotifications::writeChange}, {FieldType::Checkbox, &EditNotifications::writeChange},
    {FieldType::Slider, &EditNotifications::writeChange},    {FieldType::OptionButton, &EditNotifications::writeChange},
    {FieldType::Grid, &EditNotifications::changeCell},
};

EditNotifications::EditNotifications(FormItems &items, const FieldServices &services, EditState &state)
    : EnablerPart(items, services), mState(state) {}

void EditNotifications::Notify_Change(const ControlItemPtr &item) try {
    if (mServices.process.gblnInitialisingFields || !item->Field().Ifield_GetEnabled())
        return;
    const auto *const rule = std::ranges::find(kChangeRules, item->Type(), &ChangeRule::type);
    if (rule != std::end(kChangeRules))
        (this->*rule->apply)(item);
}
ERROR_TAIL()

void EditNotifications::Notify_Click(const ControlItemPtr &item) try {
    if (item->Field().Ifield_GetEnabled())
        Notify_Change(item);
}
ERROR_TAIL()

// Nothing is written for a keystroke; the value goes at validation.
void EditNotifications::markChanged(const ControlItemPtr & /*item*/) { component().SetDataChanged(); }

// The grid's own type name is that of the current cell.
void EditNotifications::changeCell(const ControlItemPtr &item) {
    if (item->Field().Ifield_GetRecordNr() == 0)
        return;
    const FieldType cellType = fieldTypeOf(item->Field().Ifield_GetTypeName());
    if (!isOneOf(cellType, {FieldType::Text, FieldType::IdTracker, FieldType::Combo})) {
        writeChange(item);
        return;
    }
    const QVariant value = item->Field().Ifield_GetValue();
    const QVariant stored = storedValue(item);
    if (item->Terminated())
        return;
    if (cellType == FieldType::Text) {
        if (TrimBlanks(ValueText::of(stored)) != TrimBlanks(ValueText::of(value)))
            component().SetDataChanged();
        return;
    }
    const bool same = cellType == FieldType::Combo ? ValueText::number(stored) == ValueText::number(value).value_or(0)
                                                   : ValueText::of(stored) == ValueText::of(value);
    if (!same)
        writeChange(item);
}

void EditNotifications::writeChange(const ControlItemPtr &item) {
    if (write(item, item->Field().Ifield_GetValue()) || item->Terminated())
        return;
    const QVariant stored = storedValue(item);
    if (!item->Terminated())
        item->Field().Ifield_SetValue(shownValue(item->Type(), stored), false);
}

void EditNotifications::Notify_Validate(const ControlItemPtr &item, bool &Cancel) try {
    if (item->Type() == FieldType::PageNavigator) {
        Cancel = false;
        return;
    }
    const QVariant value = item->Field().Ifield_GetValue();
    if (!item->Field().Ifield_GetUIIDNotFound() && !ValueText::isUndefined(value)) {
        const QVariant stored = storedValue(item);
        if (!item->Terminated() && !sameText(stored, value))
            Cancel = !write(item, value);
    }
    if (item->Terminated())
        Cancel = false; // there is no field left to hold the focus
    mState.mblnOKToLeaveForm = !Cancel;
}
ERROR_TAIL()

void EditNotifications::Notify_ManualValidate(const ControlItemPtr &item, const FieldEvent &event) try {
    bool cancel = event.parameter<bool>(0);
    Notify_Validate(item, cancel);
    event.parameter<bool &>(0) = cancel;
}
ERROR_TAIL()

void EditNotifications::Ienabler_ForceSaveToCurrentField() try {
    if (const ControlItemPtr item = mItems.Ienabler_GetActiveControl())
        forceSave(item);
    mState.mvarOriginalValue = QVariant();
}
ERROR_TAIL()

void EditNotifications::forceSave(const ControlItemPtr &item) {
    Notify_Change(item);
    bool cancel = false;
    if (!item->Terminated())
        Notify_Validate(item, cancel);
}

QVariant EditNotifications::storedValue(const ControlItemPtr &item) const {
    return component().GetValue(item->Field().Ifield_GetUIID(), item->Field().Ifield_GetRecordNr());
}

bool EditNotifications::write(const ControlItemPtr &item, const QVariant &value) {
    bool accepted = false;
    component().SetValue(item->Field().Ifield_GetUIID(), value, item->Field().Ifield_GetRecordNr(), true, accepted);
    return accepted;
}

// Translated on both sides: a list item that is shown in another language is no change.
bool EditNotifications::sameText(const QVariant &left, const QVariant &right) const {
    const Translation &translation = mServices.translation;
    return translation.NLSStr(TrimBlanks(ValueText::of(left))) == translation.NLSStr(TrimBlanks(ValueText::of(right)));
}
