#pragma once

#include <QRect>
#include <QtGlobal>

#include <compare>

class QWidget;

// Lengths of the forms: whole twips, 1440 to the inch. All stored geometry is in twips; pixels are derived from it at
// the edge and never turned back.
struct Twips {
    qint32 count = 0;
    constexpr auto operator<=>(const Twips &) const = default;
};
constexpr Twips operator+(Twips a, Twips b) { return {a.count + b.count}; }
constexpr Twips operator-(Twips a, Twips b) { return {a.count - b.count}; }
// Share of a length, to the nearest twip.
[[nodiscard]] Twips share(Twips length, double factor);

struct TwipSize {
    Twips width;
    Twips height;
    constexpr bool operator==(const TwipSize &) const = default;
};

struct TwipRect {
    Twips left;
    Twips top;
    Twips width;
    Twips height;
    constexpr bool operator==(const TwipRect &) const = default;
};

// Logical pixels of a screen: 15 twips a pixel at 96 dpi.
struct Pixels {
    int count = 0;
    constexpr auto operator<=>(const Pixels &) const = default;
};

class TwipScale {
  public:
    explicit constexpr TwipScale(int logicalDpi) : mDpi(logicalDpi) {}
    // The scale of the screen that shows the widget.
    [[nodiscard]] static TwipScale of(const QWidget &widget);

    // To the nearest pixel, halves away from zero.
    [[nodiscard]] Pixels toPixels(Twips length) const;
    [[nodiscard]] QSize toPixels(const TwipSize &size) const;
    [[nodiscard]] QRect toPixels(const TwipRect &rect) const;
    // Of a measured text or font height, which exists in pixels only; not for geometry.
    [[nodiscard]] Twips ofMeasure(Pixels measured) const;

  private:
    int mDpi;
};
