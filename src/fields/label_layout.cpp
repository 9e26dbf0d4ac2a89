#include "label_layout.h"

#include <algorithm>

namespace LabelLayout {
namespace {
constexpr Twips kLabelLeft{25};
constexpr Twips kLabelTop{90};
constexpr Twips kLabelHeight{375};
constexpr Twips kLabelGap{200};
constexpr Twips kRightMargin{100};
} // namespace

Twips labelWidth(Twips width, double factor) { return std::max(share(width, factor) - kLabelGap, Twips{0}); }

Parts layOut(Twips width, double factor, const Caption &caption) {
    const Twips captionSpace = labelWidth(width, factor);
    const bool wraps = factor != 0.0 && caption.width > captionSpace;
    Parts parts;
    parts.label = {kLabelLeft, wraps ? Twips{0} : kLabelTop, captionSpace, kLabelHeight};
    if (factor == 0.0)
        parts.editor = {{0}, kEditorTop, width - kRightMargin, kEditorHeight};
    else
        parts.editor = {share(width, factor) - kRightMargin, kEditorTop, share(width, 1.0 - factor), kEditorHeight};
    parts.height = kControlHeight;
    if (wraps && captionSpace > Twips{0}) {
        parts.label.height = std::max(kLabelHeight, caption.wrappedHeight);
        parts.height = std::max(kControlHeight, caption.wrappedHeight);
    }
    return parts;
}
} // namespace LabelLayout
