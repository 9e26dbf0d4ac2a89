#pragma once

#include <QtGlobal>

// The numbers of a slider: it walks in whole steps, and the value is the position times the step.
class SliderSteps {
  public:
    struct Range {
        int lowest = 0;
        int highest = 0;
    };

    void setMin(qint32 min) { mMin = min; }
    void setMax(qint32 max) { mMax = max; }
    // 0 counts as 1.
    void setStep(qint32 step) { mStep = step == 0 ? 1 : step; }

    // Without limits (both 0) the slider keeps the range that it has.
    [[nodiscard]] bool hasLimits() const { return mMin != 0 || mMax != 0; }
    // One value only: the slider is for show and stands on position 1 of a range of 1 to 2.
    [[nodiscard]] bool isFixed() const { return hasLimits() && mMin == mMax; }
    // Positions, rounded to the nearest, halves to even.
    [[nodiscard]] Range range() const;
    [[nodiscard]] int positionOf(double value) const;
    [[nodiscard]] qint32 valueOf(int position) const { return position * mStep; }
    // Whether the value is more than that share of the maximum; never with a maximum of 0.
    [[nodiscard]] bool isBeyond(double value, double share) const;

  private:
    qint32 mMin = 0;
    qint32 mMax = 0;
    qint32 mStep = 1;
};
