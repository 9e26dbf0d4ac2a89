#pragma once

#include "hosted_control.h"
#include "window_services.h"

#include <QWidget>

class PropertyReader;
class QPushButton;

// A control that is one button and no field: it has no value, raises no events and is not bound by the enabler. Its
// caption is translated once, when it is made. A click, Space or Enter presses it.
class ButtonControl : public QWidget, public HostedControl {
    Q_OBJECT
  public:
    [[nodiscard]] Ifield *AsField() override { return nullptr; }
    void SetHostEvents(HostEvents * /*listener*/) override {}
    [[nodiscard]] bool ControlEnabled() const override;
    [[nodiscard]] bool TabStop() const override { return mTabStop; }
    void SetTabStop(bool tabStop) override;
    void FocusControl() override;

  protected:
    // buttonName: of the button itself.
    ButtonControl(const FieldServices &services, const QString &buttonName, QWidget *parent);

    // "Caption"
    void readCaption(PropertyReader &reader, const QString &defaultCaption);
    [[nodiscard]] QPushButton &button() const { return *mButton; }
    // The button's place, in twips.
    void place(const TwipRect &rect);
    [[nodiscard]] const FieldServices &services() const { return mServices; }
    void keyPressEvent(QKeyEvent *event) override;

    ErrorReport &mErrors;

  private:
    FieldServices mServices;
    QPushButton *mButton; // owned by this widget
    bool mTabStop = true;
};
