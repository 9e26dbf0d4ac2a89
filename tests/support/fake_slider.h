#pragma once

#include "fake_field.h"

// A slider without a widget.
class FakeSlider final : public FakeField, public SliderRange {
  public:
    FakeSlider(CallLog &log, const QString &name) : FakeField(log, name, QStringLiteral("fldSliderField")) {}

    void SetMin(qint32 Min) override { log("SetMin", {Min}); }
    void SetMax(qint32 Max) override { log("SetMax", {Max}); }
    void SetStep(qint32 Step) override { log("SetStep", {Step}); }
};
