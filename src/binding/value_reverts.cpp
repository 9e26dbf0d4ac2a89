#include "value_reverts.h"

#include "common_error_handler.h"
#include "form_items.h"
#include "ifield.h"
#include "igrid.h"
#include "shown_value.h"
#include "transformer.h"

#include <algorithm>

struct ValueReverts::RevertRule {
    FieldType type;
    void (ValueReverts::*apply)(const ControlItemPtr &);
};

// Navigators and sliders have nothing to take back.
const ValueReverts::RevertRule ValueReverts::kRevertRules[] = {
    {FieldType::Text, &ValueReverts::showStored},
    {FieldType::Combo, &ValueReverts::writeOriginal},
    {FieldType::IdTracker, &ValueReverts::writeOriginal},
    {FieldType::Checkbox, &ValueReverts::writeOriginal},
    {FieldType::OptionButton, &ValueReverts::writeOriginal},
    {FieldType::Grid, &ValueReverts::revertCell},
};

ValueReverts::ValueReverts(FormItems &items, const FieldServices &services, EditState &state)
    : EnablerPart(items, services), mState(state) {}

void ValueReverts::Notify_Escape(const ControlItemPtr &item) try { RevertControl(item); }
ERROR_TAIL()

void ValueReverts::RevertControl(const ControlItemPtr &item) try {
    const auto *const rule = std::ranges::find(kRevertRules, item->Type(), &RevertRule::type);
    if (rule != std::end(kRevertRules))
        (this->*rule->apply)(item);
}
ERROR_TAIL()

void ValueReverts::Ienabler_RevertCurrentField() try {
    if (const ControlItemPtr item = mItems.Ienabler_GetActiveControl())
        RevertControl(item);
}
ERROR_TAIL()

void ValueReverts::showStored(const ControlItemPtr &item) {
    const QVariant stored = component().GetValue(item->Field().Ifield_GetUIID(), item->Field().Ifield_GetRecordNr());
    if (!item->Terminated())
        item->Field().Ifield_SetValue(stored, false);
}

void ValueReverts::writeOriginal(const ControlItemPtr &item) {
    if (!mState.mvarOriginalValue.isValid())
        return;
    const QVariant original = mState.mvarOriginalValue; // the write may end in another field's focus
    bool accepted = false;
    component().SetValue(item->Field().Ifield_GetUIID(), original, item->Field().Ifield_GetRecordNr(), true, accepted);
    if (!item->Terminated())
        item->Field().Ifield_SetValue(shownValue(item->Type(), original), false);
}

void ValueReverts::revertCell(const ControlItemPtr &item) { item->as<Igrid>().Igrid_RevertCurrentCell(); }
