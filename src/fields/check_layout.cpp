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
    const Twips left = std::max(captionSpace - kMargin - request.captionWidth - kMargin, Twips{0});
    const bool narrow = request.factor != 0.0 && captionSpace < request.captionWidth;
    return {left, narrow ? captionSpace + kMargin : request.captionWidth + kBoxSpace};
}
} // namespace CheckLayout
