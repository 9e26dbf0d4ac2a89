#include "slider_steps.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {
constexpr SliderSteps::Range kFixedRange{1, 2};

int nearest(double number) {
    const double least = std::numeric_limits<int>::min();
    const double most = std::numeric_limits<int>::max();
    return int(std::nearbyint(std::clamp(number, least, most)));
}
} // namespace

SliderSteps::Range SliderSteps::range() const {
    if (isFixed())
        return kFixedRange;
    return {nearest(double(mMin) / mStep), nearest(double(mMax) / mStep)};
}

int SliderSteps::positionOf(double value) const { return isFixed() ? kFixedRange.lowest : nearest(value / mStep); }

bool SliderSteps::isBeyond(double value, double share) const { return mMax != 0 && value / mMax > share; }
