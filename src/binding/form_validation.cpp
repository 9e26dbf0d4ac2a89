#include "form_validation.h"

#include "common_error_handler.h"
#include "transformer.h"

FormValidation::FormValidation(FormItems &items, const FieldServices &services) : EnablerPart(items, services) {}

bool FormValidation::Ienabler_ValidateForm(bool blnClosingForm) try {
    bool valid = false;
    component().ValidateForm(mServices.shell.LoadedFormTypeName(), mServices.shell.LoadedFormTitle(), blnClosingForm,
                             valid);
    return valid;
}
ERROR_TAIL(false)

bool FormValidation::Notify_ValidateForm() try { return Ienabler_ValidateForm(false); }
ERROR_TAIL(false)
