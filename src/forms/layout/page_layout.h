#pragma once

#include "arrangement.h"
#include "layout_text.h"

#include <span>
#include <vector>

// The frames and grids of a page, or of a form without pages, in an area: frames below each other or in two columns,
// whichever needs no more height than there is, leaves grids and editing parts room and breaks fewest captions.
class PageLayout {
  public:
    PageLayout(const LayoutText &text, TwipRect area);

    // Places of the frames and grids relative to the area's origin, of everything else relative to its container.
    // The height of the result is what is used; above that of the area when the page holds too much.
    [[nodiscard]] Arrangement arrange(std::span<const ControlDefinition *const> controls) const;

  private:
    struct Plan {
        std::size_t secondColumnFrom; // index of the first control in the second column; the count: one column
        // In frames with many fields; where the frames themselves stand in two columns, only above headings.
        bool twoFieldColumns;
        double firstShare = 1; // of the first column in the width
        bool dense = false;    // fields close to each other
    };
    using Controls = std::span<const ControlDefinition *const>;

    [[nodiscard]] Arrangement arrangeBy(const Plan &plan, Controls controls) const;
    [[nodiscard]] Arrangement stack(Controls controls, Twips left, Twips width, bool twoFieldColumns) const;
    [[nodiscard]] Arrangement matrix(Controls grids) const;
    [[nodiscard]] static std::vector<Plan> plans(Controls controls);
    [[nodiscard]] static double habitPrice(const Plan &plan, std::size_t count);
    [[nodiscard]] double price(const Arrangement &result) const;

    const LayoutText &mText;
    TwipRect mArea;
};
