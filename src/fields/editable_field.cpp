#include "editable_field.h"

#include "common_error_handler.h"
#include "host_control.h"

#include <QKeyEvent>

bool EditableField::MayLeave() try {
    const std::shared_ptr<clsControlItem> keepsListener = Ifield_WrapperCtrlItem();
    bool cancel = false;
    if (hostEvents() != nullptr)
        hostEvents()->frmField_Validate(cancel);
    if (cancel)
        return false;
    return isTerminated() || lastCheckBeforeLeave();
}
ERROR_TAIL(true)

void EditableField::FocusHasLeft() try {
    const std::shared_ptr<clsControlItem> keepsListener = Ifield_WrapperCtrlItem();
    reportPendingChoice();
    if (hostEvents() != nullptr)
        hostEvents()->frmField_LostFocus();
}
ERROR_TAIL()

void EditableField::FocusHasCome() try {
    const std::shared_ptr<clsControlItem> keepsListener = Ifield_WrapperCtrlItem();
    if (hostEvents() != nullptr)
        hostEvents()->frmField_GotFocus();
}
ERROR_TAIL()

bool EditableField::TakesFocus() const {
    const QWidget *part = editingPart();
    return part != nullptr && part->isEnabled() && part->isVisible();
}

void EditableField::Ifield_SetFocus() try {
    QWidget *part = editingPart();
    if (part != nullptr && part->isVisible())
        part->setFocus(Qt::OtherFocusReason);
}
ERROR_TAIL()

bool EditableField::handleWhatsThisKey(QEvent &event) {
    if (event.type() != QEvent::KeyPress && event.type() != QEvent::ShortcutOverride)
        return false;
    auto &key = static_cast<QKeyEvent &>(event);
    if (key.key() != Qt::Key_F1 || key.modifiers() != Qt::ShiftModifier)
        return false;
    event.accept();
    if (event.type() == QEvent::KeyPress)
        services().shell.ShowWhatsThisHelp(Ifield_GetHelpID());
    return true;
}
