#pragma once

#include "enabler_part.h"

#include <QString>

// The form's first focus, the field that has it, and the fields' What's This numbers.
class FormFocus : private EnablerPart {
  public:
    FormFocus(FormItems &items, const FieldServices &services);

    // Focus to the enabled field with the lowest tab index; a navigator never takes it.
    void UserControl_Show();
    // "" when no field has the focus.
    [[nodiscard]] QString Ienabler_GetUIIDOfFieldWithFocus();
    void Ienabler_SetWhatsThisHelpIDs();
    void Ienabler_ClearWhatsThisHelpIDs();
};
