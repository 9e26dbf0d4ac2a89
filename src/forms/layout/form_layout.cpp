#include "form_layout.h"

#include "form_definition.h"
#include "page_layout.h"

#include <algorithm>

namespace {
constexpr Twips kMargin{60};
constexpr Twips kPageMargin{90};
constexpr Twips kNavigatorHeight{520};
constexpr Twips kNavigatorGap{15};

std::vector<const ControlDefinition *> pointers(const std::vector<ControlDefinition> &controls, bool navigators) {
    std::vector<const ControlDefinition *> result;
    for (const ControlDefinition &control : controls) {
        if ((control.typeName == u"fldPageNavigator") == navigators)
            result.push_back(&control);
    }
    return result;
}

void take(FormGeometry &geometry, const Arrangement &arrangement, Twips room) {
    for (const ArrangedControl &arranged : arrangement.controls)
        geometry.places.insert(arranged.control->name, arranged.place);
    geometry.excess = std::max(geometry.excess, arrangement.height - room);
}
} // namespace

FormGeometry FormLayout::arrange(const FormDefinition &form) const {
    FormGeometry geometry;
    TwipRect area{kMargin, kMargin, kCanvas.width - kMargin - kMargin, kCanvas.height - kMargin - kMargin};
    const std::vector<const ControlDefinition *> navigators = pointers(form.controls, true);
    // A navigator brings its own margins.
    if (!navigators.empty())
        area.height = area.height + kMargin;
    for (const ControlDefinition *navigator : navigators) {
        area.height = area.height - kNavigatorHeight - kNavigatorGap;
        geometry.places.insert(navigator->name,
                               {area.left, area.top + area.height + kNavigatorGap, area.width, kNavigatorHeight});
    }
    const std::vector<const ControlDefinition *> onForm = pointers(form.controls, false);
    if (!onForm.empty())
        take(geometry, PageLayout(mText, area).arrange(onForm), area.height);
    if (form.pages.empty())
        return geometry;
    geometry.places.insert(form.tabControl.name, area);
    const TwipRect page{kPageMargin, kPageMargin, area.width - kTabBorders - kPageMargin - kPageMargin,
                        area.height - kTabRow - kPageMargin - kPageMargin};
    for (const PageDefinition &definition : form.pages)
        take(geometry, PageLayout(mText, page).arrange(pointers(definition.controls, false)), page.height);
    return geometry;
}
