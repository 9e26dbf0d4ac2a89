#include "focus_notifications.h"

#include "common_error_handler.h"
#include "field_initialisation.h"
#include "ifield.h"
#include "initialising_fields_guard.h"
#include "transformer.h"

#include <algorithm>

struct FocusNotifications::EntryRule {
    FieldType type;
    void (FocusNotifications::*apply)(const ControlItemPtr &);
};

const FocusNotifications::EntryRule FocusNotifications::kEntryRules[] = {
    {FieldType::Checkbox, &FocusNotifications::keepOriginal},
    {FieldType::Combo, &FocusNotifications::keepOriginal},
    {FieldType::OptionButton, &FocusNotifications::keepOriginal},
    {FieldType::IdTracker, &FocusNotifications::keepOriginalAndRefill},
    {FieldType::Slider, &FocusNotifications::enterSlider},
};

FocusNotifications::FocusNotifications(FormItems &items, const FieldServices &services, EditState &state,
                                       FieldInitialisation &fields)
    : EnablerPart(items, services), mState(state), mFields(fields) {}

void FocusNotifications::Notify_GotFocus(const ControlItemPtr &item) try {
    const auto *const rule = std::ranges::find(kEntryRules, item->Type(), &EntryRule::type);
    if (rule != std::end(kEntryRules))
        (this->*rule->apply)(item);
    if (!item->Terminated())
        component().FieldGotFocus(item->Field().Ifield_GetUIID());
}
ERROR_TAIL()

void FocusNotifications::keepOriginal(const ControlItemPtr &item) {
    mState.mvarOriginalValue = component().GetValue(item->Field().Ifield_GetUIID(), item->Field().Ifield_GetRecordNr());
}

void FocusNotifications::keepOriginalAndRefill(const ControlItemPtr &item) {
    keepOriginal(item);
    const InitialisingFieldsGuard guard(mServices.process);
    mFields.InitialiseField(item);
}

void FocusNotifications::enterSlider(const ControlItemPtr &item) {
    bool result = false;
    component().FieldEnterFocusValue(item->Field().Ifield_GetUIID(), item->Field().Ifield_GetValue(),
                                     item->Field().Ifield_GetRecordNr(), result);
}

void FocusNotifications::Notify_ExitFocus(const ControlItemPtr &item) try {
    if (item->Type() != FieldType::Slider)
        return;
    bool result = false;
    component().FieldExitFocusValue(item->Field().Ifield_GetUIID(), item->Field().Ifield_GetValue(),
                                    item->Field().Ifield_GetRecordNr(), result);
}
ERROR_TAIL()

void FocusNotifications::Notify_LostFocus(const ControlItemPtr &item) try {
    component().FieldLostFocus(item->Field().Ifield_GetUIID());
}
ERROR_TAIL()

void FocusNotifications::Notify_Initialise(const ControlItemPtr &item) try {
    if (!mServices.process.gblnInitialisingFields)
        mFields.InitialiseField(item);
}
ERROR_TAIL()
