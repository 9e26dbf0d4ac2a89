#include "check_layout.h"

#include <algorithm>

namespace CheckLayout {
namespace {
constexpr Twips kMargin{100};
constexpr Twips kBoxSpace{300};
constexpr Twips kBoxBehindCaption{90};
} // namespace

Span layOut(const Request &request) {
    const Twips captionSpace = share(request.width, request.factor);
    if (!request.captionRight)
        return {{0},
                request.factor == 0.0 ? request.width - kMargin
                                      : std::min(captionSpace + kBoxBehindCaption, request.width)};
    // A factor close to 1 leaves the box no room behind the caption: both move to the left.
    const Twips last = request.width - request.captionWidth - kBoxSpace;
    const Twips left = std::max(std::min(captionSpace - kMargin - request.captionWidth - kMargin, last), Twips{0});
    const bool narrow = request.factor != 0.0 && captionSpace < request.captionWidth;
    return {left, narrow ? captionSpace + kMargin : request.captionWidth + kBoxSpace};
}
} // namespace CheckLayout
