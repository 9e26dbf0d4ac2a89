#include "form_controls_of.h"

#include "iusrfrm.h"

#include <QWidget>

const HostControls *formControlsOf(const QWidget &control) {
    for (QWidget *widget = control.parentWidget(); widget != nullptr; widget = widget->parentWidget()) {
        if (auto *const form = dynamic_cast<Iusrfrm *>(widget))
            return &form->Iusrfrm_Controls();
    }
    return nullptr;
}
