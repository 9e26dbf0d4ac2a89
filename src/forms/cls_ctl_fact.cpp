#include "cls_ctl_fact.h"

#include "form_layout.h"

#include <QHash>

namespace {
double part(Twips length, Twips whole) { return double(length.count) / whole.count; }
} // namespace

clsCtlFact::clsCtlFact(const QString &typeName, const TwipRect &design)
    : mFollows(followsOf(typeName)), mDesign(design), mLeftFactor(part(design.left, FormLayout::kCanvas.width)),
      mTopFactor(part(design.top, FormLayout::kCanvas.height)),
      mWidthFactor(part(design.width, FormLayout::kCanvas.width)),
      mHeightFactor(part(design.height, FormLayout::kCanvas.height)) {}

clsCtlFact::Follows clsCtlFact::followsOf(const QString &typeName) {
    static const QHash<QString, Follows> kFollows{
        {QStringLiteral("fldGridField"), Follows::PlaceAndSize}, {QStringLiteral("SSTab"), Follows::PlaceAndSize},
        {QStringLiteral("fldFrame"), Follows::PlaceAndSize},     {QStringLiteral("Frame"), Follows::PlaceAndSize},
        {QStringLiteral("fldTextField"), Follows::Place},        {QStringLiteral("fldComboField"), Follows::Place},
        {QStringLiteral("fldCheckboxField"), Follows::Place},    {QStringLiteral("fldIdTrackerField"), Follows::Place},
        {QStringLiteral("fldSliderField"), Follows::Place},      {QStringLiteral("fldPageNavigator"), Follows::Place},
        {QStringLiteral("fldSubFormCallUp"), Follows::Place},    {QStringLiteral("fldTrigger"), Follows::Place},
    };
    return kFollows.value(typeName, Follows::Nothing);
}

TwipRect clsCtlFact::scaled(const TwipSize &form) const {
    TwipRect place = mDesign;
    if (mFollows == Follows::Nothing)
        return place;
    place.left = share(form.width, mLeftFactor);
    place.top = share(form.height, mTopFactor);
    if (mFollows == Follows::PlaceAndSize) {
        place.width = share(form.width, mWidthFactor);
        place.height = share(form.height, mHeightFactor);
    }
    return place;
}
