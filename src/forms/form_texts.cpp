#include "form_texts.h"

#include "control_classes.h"
#include "form_definition.h"
#include "plain_caption.h"
#include "transformer.h"
#include "translation.h"
#include "value_text.h"
#include "xarray_db.h"

#include <algorithm>

namespace {
QFont bold(QFont font) {
    font.setBold(true);
    return font;
}
} // namespace

FormTexts::FormTexts(Transformer *component, const Translation &translation, const QFont &font, int dpi)
    : mComponent(component), mTranslation(translation), mMetrics(font), mTitleMetrics(bold(font)), mScale(dpi) {}

QString FormTexts::caption(const ControlDefinition &control) const {
    const auto known = mCaptions.constFind(&control);
    return known != mCaptions.constEnd() ? *known : *mCaptions.insert(&control, shownCaption(control));
}

QString FormTexts::shownCaption(const ControlDefinition &control) const {
    QString label;
    if (mComponent != nullptr && ControlClasses::isField(control.typeName))
        label = mComponent->GetLabel(control.id());
    return plainCaption(mTranslation.NLSStr(label.isEmpty() ? control.caption() : label)).trimmed();
}

Twips FormTexts::width(const QString &text) const {
    const auto known = mWidths.constFind(text);
    if (known != mWidths.constEnd())
        return *known;
    // One more, as a label counts itself.
    return *mWidths.insert(text, mScale.ofMeasure({mMetrics.horizontalAdvance(text) + 1}));
}

Twips FormTexts::titleWidth(const QString &text) const {
    return mScale.ofMeasure({mTitleMetrics.horizontalAdvance(text)});
}

Twips FormTexts::lineHeight() const { return mScale.ofMeasure({mMetrics.height()}); }

Twips FormTexts::widestItem(const ControlDefinition &combo) const {
    const auto known = mWidestItems.constFind(&combo);
    return known != mWidestItems.constEnd() ? *known : *mWidestItems.insert(&combo, measuredItems(combo));
}

Twips FormTexts::measuredItems(const ControlDefinition &combo) const {
    XArrayDB items;
    qint32 scope = 0;
    const bool isCombo = combo.typeName == u"fldComboField";
    if (mComponent == nullptr || !isCombo || !mComponent->GetComboItems(combo.id(), 0, items, scope))
        return {};
    Twips widest;
    for (qint32 row = 0; row <= items.UpperBound(1); ++row)
        widest = std::max(widest, width(mTranslation.NLSStr(ValueText::of(items.Value(row, 0)))));
    return widest;
}
