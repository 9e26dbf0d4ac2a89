#include "dimmed_colour.h"

#include <QPalette>

#include <cmath>

namespace {
constexpr double kDimmed = 0.55;
}

QColor dimmedTextColour(const QPalette &palette) { return mixedTextColour(palette, kDimmed); }

QColor mixedTextColour(const QPalette &palette, double strength) {
    const QColor window = palette.color(QPalette::Active, QPalette::Window);
    const QColor text = palette.color(QPalette::Active, QPalette::WindowText);
    const auto mix = [strength](int from, int to) { return int(std::lround(from + (to - from) * strength)); };
    return {mix(window.red(), text.red()), mix(window.green(), text.green()), mix(window.blue(), text.blue())};
}
