#pragma once

#include "layout_text.h"

#include <QFontMetrics>
#include <QHash>

class Transformer;
class Translation;

// The texts of a form as the enabler will show them: the component's label of a field, or the caption of its
// definition, translated. Each text is measured once.
class FormTexts final : public LayoutText {
  public:
    // A null component: captions only. dpi: of the screen that the font is meant for.
    FormTexts(Transformer *component, const Translation &translation, const QFont &font, int dpi);

    [[nodiscard]] QString caption(const ControlDefinition &control) const override;
    [[nodiscard]] Twips width(const QString &text) const override;
    [[nodiscard]] Twips titleWidth(const QString &text) const override;
    [[nodiscard]] Twips lineHeight() const override;
    [[nodiscard]] Twips widestItem(const ControlDefinition &combo) const override;

  private:
    [[nodiscard]] QString shownCaption(const ControlDefinition &control) const;
    [[nodiscard]] Twips measuredItems(const ControlDefinition &combo) const;

    Transformer *mComponent;
    const Translation &mTranslation;
    QFontMetrics mMetrics;
    QFontMetrics mTitleMetrics;
    TwipScale mScale;
    mutable QHash<const ControlDefinition *, QString> mCaptions;
    mutable QHash<QString, Twips> mWidths;
    mutable QHash<const ControlDefinition *, Twips> mWidestItems;
};
