#pragma once

#include "button_control.h"

struct FieldProperties;

// A button that fires one action of the component, named by its UIID. It is no field: label, value and enabled state
// are not the component's.
//
// Properties: Caption ("Execute"), ID ("Undefined").
class fldTrigger final : public ButtonControl {
    Q_OBJECT
  public:
    fldTrigger(const FieldServices &services, const FieldProperties &properties, QWidget *parent);

    TwipSize SetControlSize(const TwipSize &size) override;

  private:
    void Button1_Click();

    QString mUIID;
};
