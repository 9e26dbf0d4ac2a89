#pragma once

#include "twips.h"

#include <QString>

struct ControlDefinition;

// What the geometry asks about the texts of a form: as they will be shown, translated, in the font of the form.
class LayoutText {
  public:
    virtual ~LayoutText() = default;
    // A field's label, a frame's or heading's title; "" shows nothing.
    [[nodiscard]] virtual QString caption(const ControlDefinition &control) const = 0;
    // Of one line.
    [[nodiscard]] virtual Twips width(const QString &text) const = 0;
    // Of one line of a frame's or heading's title, which stands in a bolder font.
    [[nodiscard]] virtual Twips titleWidth(const QString &text) const = 0;
    [[nodiscard]] virtual Twips lineHeight() const = 0;
    // From one field to the next below it: whole pixels, so that rows never touch.
    [[nodiscard]] virtual Twips rowHeight() const { return {405}; }
    // Of the widest item of a combo's list; 0 for other controls, and where it is not known.
    [[nodiscard]] virtual Twips widestItem(const ControlDefinition & /*combo*/) const { return {}; }
};
