#include "scroll_layout.h"

#include <algorithm>
#include <cstdlib>

namespace {
ScrollRange range(Twips container, Twips viewPort) {
    const qint32 max = std::abs((container - viewPort).count);
    return {true, max, max / 2, max / 5};
}
} // namespace

ScrollLayout ScrollLayout::of(TwipSize space, Twips barThickness) {
    ScrollLayout layout;
    layout.viewPort = space;
    bool vertical = layout.viewPort.height < kDesignSize.height;
    if (vertical)
        layout.viewPort.width = layout.viewPort.width - barThickness;
    const bool horizontal = layout.viewPort.width < kDesignSize.width;
    if (horizontal)
        layout.viewPort.height = layout.viewPort.height - barThickness;
    // The horizontal bar may have taken the height that was enough before.
    if (!vertical && layout.viewPort.height < kDesignSize.height) {
        vertical = true;
        layout.viewPort.width = layout.viewPort.width - barThickness;
    }
    layout.container = {std::max(layout.viewPort.width, kDesignSize.width),
                        std::max(layout.viewPort.height, kDesignSize.height)};
    if (vertical)
        layout.vertical = range(layout.container.height, layout.viewPort.height);
    if (horizontal)
        layout.horizontal = range(layout.container.width, layout.viewPort.width);
    return layout;
}
