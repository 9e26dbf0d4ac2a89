#include "twips.h"

#include <QWidget>

#include <cmath>

namespace {
constexpr double kTwipsPerInch = 1440.0;
}

Twips share(Twips length, double factor) { return {qint32(std::lround(double(length.count) * factor))}; }

TwipScale TwipScale::of(const QWidget &widget) { return TwipScale(widget.logicalDpiX()); }

Pixels TwipScale::toPixels(Twips length) const {
    return {int(std::lround(double(length.count) * mDpi / kTwipsPerInch))};
}

QSize TwipScale::toPixels(const TwipSize &size) const {
    return {toPixels(size.width).count, toPixels(size.height).count};
}

QRect TwipScale::toPixels(const TwipRect &rect) const {
    return {toPixels(rect.left).count, toPixels(rect.top).count, toPixels(rect.width).count,
            toPixels(rect.height).count};
}

Twips TwipScale::ofMeasure(Pixels measured) const {
    return {qint32(std::lround(double(measured.count) * kTwipsPerInch / mDpi))};
}
