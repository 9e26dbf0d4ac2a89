#pragma once

#include "twips.h"

// Where the check box with its own caption stands in its control. Pure arithmetic in twips.
namespace CheckLayout {
struct Request {
    Twips width;        // of the control
    double factor = 0;  // the caption's share, 0 to 1
    Twips captionWidth; // on one line; of the three blanks at factor 0
    bool captionRight = false;
};
struct Span {
    Twips left;
    Twips width;
    constexpr bool operator==(const Span &) const = default;
};
[[nodiscard]] Span layOut(const Request &request);
} // namespace CheckLayout
