#include "button_control.h"

#include "field_properties.h"
#include "plain_caption.h"
#include "translation.h"

#include <QKeyEvent>
#include <QPushButton>

ButtonControl::ButtonControl(const FieldServices &services, const QString &buttonName, QWidget *parent)
    : QWidget(parent), mErrors(services.errors), mServices(services), mButton(new QPushButton(this)) {
    mButton->setObjectName(buttonName);
    mButton->setAutoDefault(false); // Enter in a field of a dialog presses nothing
}

void ButtonControl::readCaption(PropertyReader &reader, const QString &defaultCaption) {
    const QString caption = mServices.translation.NLSStr(reader.text(QStringLiteral("Caption"), defaultCaption));
    mButton->setText(caption);
    mButton->setAccessibleName(plainCaption(caption));
}

bool ButtonControl::ControlEnabled() const { return mButton->isEnabledTo(this); }

void ButtonControl::SetTabStop(bool tabStop) {
    mTabStop = tabStop;
    mButton->setFocusPolicy(tabStop ? Qt::StrongFocus : Qt::ClickFocus);
}

void ButtonControl::FocusControl() { mButton->setFocus(Qt::OtherFocusReason); }

void ButtonControl::place(const TwipRect &rect) {
    const TwipScale scale = TwipScale::of(*this);
    mButton->setGeometry(scale.toPixels(rect));
}

void ButtonControl::keyPressEvent(QKeyEvent *event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && mButton->hasFocus())
        mButton->click();
    else
        QWidget::keyPressEvent(event);
}
