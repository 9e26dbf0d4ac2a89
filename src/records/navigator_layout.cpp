#include "navigator_layout.h"

#include <algorithm>
#include <numeric>

namespace {
constexpr Twips kMargin{80};
constexpr Twips kTop{30};
constexpr Twips kListLeft{360};
constexpr Twips kGap{40};
constexpr Twips kBelow{90};
constexpr Twips kGroupGap{120};
constexpr Twips kComfortable{3000};
constexpr Twips kLeastSlider{900};
constexpr double kListShare = 0.62;

Twips total(const std::vector<Twips> &widths) {
    const Twips sum = std::accumulate(widths.begin(), widths.end(), Twips{});
    return widths.empty() ? Twips{} : sum + Twips{kGap.count * (qint32(widths.size()) - 1)};
}

std::vector<TwipRect> row(const std::vector<Twips> &widths, Twips left, Twips height) {
    std::vector<TwipRect> places;
    for (const Twips width : widths) {
        places.push_back({left, kTop, width, height});
        left = left + width + kGap;
    }
    return places;
}

Twips heightOf(const NavigatorLayout::Needs &needs) { return needs.partHeight + kGap + kBelow; }
} // namespace

namespace NavigatorLayout {
Places records(const Needs &needs) {
    const Twips buttonsLeft = needs.width - kMargin - total(needs.buttons);
    const Twips listLeft =
        std::max(kListLeft, needs.description == Twips{} ? Twips{} : kMargin + needs.description + kGap + kGap);
    const Twips room = buttonsLeft - listLeft - total(needs.movement) - kGap - kGroupGap - kGroupGap;
    const Twips slider = std::max(kLeastSlider, room - share(room, kListShare));
    const Twips list = std::max(Twips{}, room - slider);
    const Twips movementLeft = listLeft + list + kGap;
    Places places;
    places.description = {kMargin, kTop, needs.description, needs.partHeight};
    places.list = {listLeft, kTop, list, needs.partHeight};
    places.movement = row(needs.movement, movementLeft, needs.partHeight);
    places.slider = {movementLeft + total(needs.movement) + kGroupGap, kTop, slider, needs.partHeight};
    places.buttons = row(needs.buttons, buttonsLeft, needs.partHeight);
    places.height = heightOf(needs);
    places.cramped = room < kComfortable;
    return places;
}

Places steps(const Needs &needs) {
    const Twips buttonsLeft = needs.width - kMargin - total(needs.buttons);
    Places places;
    places.slider = {kMargin, kTop, std::max(kLeastSlider, buttonsLeft - kGroupGap - kMargin), needs.partHeight};
    places.buttons = row(needs.buttons, buttonsLeft, needs.partHeight);
    places.height = heightOf(needs);
    return places;
}
} // namespace NavigatorLayout
