#include "form_texts.h"

#include "control_classes.h"
#include "form_definition.h"
#include "plain_caption.h"
#include "transformer.h"
#include "translation.h"

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
    return *mWidths.insert(text, mScale.ofMeasure({mMetrics.horizontalAdvance(text)}));
}

Twips FormTexts::titleWidth(const QString &text) const {
    return mScale.ofMeasure({mTitleMetrics.horizontalAdvance(text)});
}

Twips FormTexts::lineHeight() const { return mScale.ofMeasure({mMetrics.height()}); }
