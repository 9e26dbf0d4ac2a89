#pragma once

#include "layout_text.h"

#include <QHash>

struct FormDefinition;

// Where each control of a form stands: by its name, relative to the inner area of its container (the form, a frame, a
// page of the tab control).
struct FormGeometry {
    QHash<QString, TwipRect> places;
    // How far the form's contents go beyond the canvas; 0 when all fits.
    Twips excess;
};

// Works out a form's geometry from its reading order, on the canvas of the forms. Nothing is stored: it is done when a
// form is made, with the texts in the language and the font in which they will stand there.
class FormLayout {
  public:
    // The design size of every form; a form is never shown smaller.
    static constexpr TwipSize kCanvas{{9345}, {6430}};
    // What a tab control keeps for its row of tabs and its borders: a page is lower by that.
    static constexpr Twips kTabRow{525};
    static constexpr Twips kTabBorders{60};

    explicit FormLayout(const LayoutText &text) : mText(text) {}

    [[nodiscard]] FormGeometry arrange(const FormDefinition &form) const;

  private:
    const LayoutText &mText;
};
