#include "form_focus.h"

#include "common_error_handler.h"
#include "form_items.h"
#include "ifield.h"

FormFocus::FormFocus(FormItems &items, const FieldServices &services) : EnablerPart(items, services) {}

void FormFocus::UserControl_Show() try {
    ControlItemPtr first;
    for (const ControlItemPtr &item : mItems.all()) {
        const bool eligible =
            item->hasType({FieldType::Checkbox, FieldType::Combo, FieldType::IdTracker, FieldType::Grid,
                           FieldType::Text, FieldType::Slider, FieldType::OptionButton}) &&
            item->Field().Ifield_GetEnabled();
        if (eligible && (first == nullptr || item->TabIndex() < first->TabIndex()))
            first = item;
    }
    if (first != nullptr)
        first->SetFocus();
}
ERROR_TAIL()

QString FormFocus::Ienabler_GetUIIDOfFieldWithFocus() try {
    const ControlItemPtr active = mItems.Ienabler_GetActiveControl();
    return active == nullptr ? QString() : active->Field().Ifield_GetUIID();
}
ERROR_TAIL({})

void FormFocus::Ienabler_SetWhatsThisHelpIDs() try {
    for (const ControlItemPtr &item : mItems.all()) {
        if (item->Field().Ifield_GetVisible())
            item->Field().Ifield_SetWhatsThisHelpID(item->Field().Ifield_GetHelpID());
    }
}
ERROR_TAIL()

void FormFocus::Ienabler_ClearWhatsThisHelpIDs() try {
    for (const ControlItemPtr &item : mItems.all())
        item->Field().Ifield_SetWhatsThisHelpID(0);
}
ERROR_TAIL()
