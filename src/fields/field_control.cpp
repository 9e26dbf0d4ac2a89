#include "field_control.h"

#include "common_error_handler.h"
#include "field_properties.h"
#include "host_control.h"
#include "process_values.h"
#include "string_utilities.h"
#include "transformer.h"
#include "translation.h"

#include <QEvent>

FieldControl::FieldControl(const FieldServices &services, QWidget *parent)
    : QWidget(parent), mErrors(services.errors), mServices(services) {}

void FieldControl::readIdentity(PropertyReader &reader) {
    mUIID = reader.text(QStringLiteral("ID"), QStringLiteral("Undefined"));
    mNavigatorStream = reader.integer(QStringLiteral("NavigatorStream"), 0);
}

void FieldControl::Ifield_SetHelpID(qint32 HelpID) try {
    mHelpID = HelpID;
    QWidget *part = editingPart();
    if (part != nullptr && mServices.process.objTransformer != nullptr)
        part->setAccessibleDescription(mServices.translation.NLSStr(component().GetHelpText(mUIID)));
}
ERROR_TAIL()

void FieldControl::Ifield_Terminate() {
    mTerminated = true;
    mHostEvents = nullptr;
    mWrapper.reset();
}

void FieldControl::SetTabStop(bool tabStop) {
    mTabStop = tabStop;
    if (QWidget *part = editingPart())
        part->setFocusPolicy(tabStop ? Qt::StrongFocus : Qt::ClickFocus);
}

void FieldControl::raise(const FieldEvent &event) {
    const std::shared_ptr<clsControlItem> keepsListener = mWrapper;
    if (mHostEvents != nullptr)
        mHostEvents->frmField_ObjectEvent(event);
}

bool FieldControl::raiseManualValidate() {
    bool cancel = false;
    raise(FieldEvent(QStringLiteral("ManualValidate"), out(cancel)));
    return !cancel;
}

Transformer &FieldControl::component() const {
    if (mServices.process.objTransformer == nullptr) {
        throw RunTimeError(ErrorNumber::kMissingObject, QStringLiteral("FieldControl"),
                           QStringLiteral("The component is not loaded"));
    }
    return *mServices.process.objTransformer;
}

bool FieldControl::strikesOutUnknown() const { return mNavigatorStream == 0 && IsExecutingFromIDE(); }

void FieldControl::changeEvent(QEvent *event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        applyColours();
}
