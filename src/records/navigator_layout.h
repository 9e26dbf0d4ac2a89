#pragma once

#include "twips.h"

#include <vector>

// The strip of a navigator: where its parts stand, all on one line.
namespace NavigatorLayout {
constexpr Twips kLeastWidth{6000};
constexpr Twips kPartHeight{390};

// What the parts need. Widths of buttons that are not shown are left out.
struct Needs {
    Twips width; // of the control; at least kLeastWidth
    Twips partHeight;
    Twips description;
    std::vector<Twips> movement;
    std::vector<Twips> buttons; // record or step buttons, at the right end
};

struct Places {
    TwipRect description;
    TwipRect list;
    TwipRect slider;
    std::vector<TwipRect> movement;
    std::vector<TwipRect> buttons;
    Twips height;         // of the control
    bool cramped = false; // list and slider get less room than is comfortable
};

// Description, list, movement buttons, slider, record buttons.
[[nodiscard]] Places records(const Needs &needs);
// Slider, step buttons.
[[nodiscard]] Places steps(const Needs &needs);
} // namespace NavigatorLayout
