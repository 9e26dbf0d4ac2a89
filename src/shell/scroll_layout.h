#pragma once

#include "twips.h"

// A scroll bar's numbers in twips; all 0 where it does not show.
struct ScrollRange {
    bool shown = false;
    qint32 max = 0;
    qint32 largeChange = 0;
    qint32 smallChange = 0;
    friend bool operator==(const ScrollRange &, const ScrollRange &) = default;
};

// How a form's surface lies in its view port. The surface fills the view port but is never less than a form's design
// size; a scroll bar takes its thickness from the view port.
struct ScrollLayout {
    static constexpr TwipSize kDesignSize{{9345}, {6430}};

    TwipSize container;
    TwipSize viewPort;
    ScrollRange horizontal;
    ScrollRange vertical;

    [[nodiscard]] static ScrollLayout of(TwipSize space, Twips barThickness);
};
