#pragma once

#include "twips.h"

// How a caption and the part behind it share the width of a labelled field. Pure arithmetic in twips.
namespace LabelLayout {
inline constexpr Twips kControlHeight{400};
inline constexpr Twips kEditorTop{50};
inline constexpr Twips kEditorHeight{315};

struct Caption {
    Twips width;         // on one line
    Twips wrappedHeight; // wrapped into labelWidth()
};
struct Parts {
    TwipRect label; // no width: no caption is seen
    TwipRect editor;
    Twips height; // of the control: 400, or what a caption of more than one line needs
};

// factor: share of the width that goes to the caption, 0 to 1.
[[nodiscard]] Twips labelWidth(Twips width, double factor);
[[nodiscard]] Parts layOut(Twips width, double factor, const Caption &caption);
} // namespace LabelLayout
