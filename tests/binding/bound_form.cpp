#include "bound_form.h"

BoundForm::BoundForm()
    : enabler(std::make_shared<ctlFormEnabler>(controls, services.fieldServices(), [this] { return active; })) {}

BoundForm::~BoundForm() { close(); }

void BoundForm::bind() {
    enabler->AccessControls();
    (void)log.take();
}

void BoundForm::close() {
    if (enabler == nullptr)
        return;
    active = nullptr;
    for (HostControl *control : controls) {
        if (Ifield *const field = fieldOf(control))
            field->Ifield_Terminate();
    }
    enabler->UserControl_Terminate();
    enabler.reset();
}
