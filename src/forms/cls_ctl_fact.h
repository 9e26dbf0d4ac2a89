#pragma once

#include "twips.h"

#include <QString>

// One control's share in the size of its form, by which it follows when the form is resized. Left and Top are relative
// to the control's container, yet measured against the whole canvas.
class clsCtlFact {
  public:
    // design: the control's place on the canvas of the forms.
    clsCtlFact(const QString &typeName, const TwipRect &design);

    // The place on a form of that size, each length to the nearest twip. Fields, buttons and navigators move, but keep
    // their own size; frames, grids and the tab control take all four; any other control stays.
    [[nodiscard]] TwipRect scaled(const TwipSize &form) const;

  private:
    enum class Follows { Nothing, Place, PlaceAndSize };
    [[nodiscard]] static Follows followsOf(const QString &typeName);

    Follows mFollows;
    TwipRect mDesign;
    double mLeftFactor;
    double mTopFactor;
    double mWidthFactor;
    double mHeightFactor;
};
