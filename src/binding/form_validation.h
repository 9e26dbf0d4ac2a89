#pragma once

#include "enabler_part.h"

// Asks the component whether the open form as a whole is valid.
class FormValidation : private EnablerPart {
  public:
    FormValidation(FormItems &items, const FieldServices &services);

    // Always the main window's open form, also when a sub-form asks. False: the component has said why.
    [[nodiscard]] bool Ienabler_ValidateForm(bool blnClosingForm);
    [[nodiscard]] bool Notify_ValidateForm();
};
