#include "page_layout.h"

#include "form_definition.h"
#include "frame_layout.h"

#include <algorithm>
#include <limits>
#include <optional>

namespace {
constexpr Twips kGap{90};
constexpr Twips kLeastGridHeight{1020};
constexpr std::size_t kGridsInARow = 3;
constexpr int kManyRows = 8;
constexpr int kManyRowsAboveHeadings = 3;
constexpr Twips kWideFrame{6000};
constexpr std::size_t kManyFrames = 4;

// The same texts in rows that leave no air between the fields, for the sake of a grid below them.
class DenseText final : public LayoutText {
  public:
    explicit DenseText(const LayoutText &text) : mText(text) {}

    [[nodiscard]] QString caption(const ControlDefinition &control) const override { return mText.caption(control); }
    [[nodiscard]] Twips width(const QString &text) const override { return mText.width(text); }
    [[nodiscard]] Twips titleWidth(const QString &text) const override { return mText.titleWidth(text); }
    [[nodiscard]] Twips lineHeight() const override { return mText.lineHeight(); }
    [[nodiscard]] Twips widestItem(const ControlDefinition &combo) const override { return mText.widestItem(combo); }
    [[nodiscard]] Twips rowHeight() const override { return {345}; }

  private:
    const LayoutText &mText;
};

bool isGrid(const ControlDefinition *control) { return control->typeName == u"fldGridField"; }

// A control of a stack before its height is known.
class StackedControl {
  public:
    StackedControl(const LayoutText &text, const ControlDefinition &control, Twips width, bool twoFieldColumns)
        : mControl(control), mWidth(width) {
        if (isGrid(&control))
            return;
        mFrame.emplace(text, control);
        const int many = mFrame->hasHeadings() ? kManyRowsAboveHeadings : kManyRows;
        const bool room = mFrame->hasHeadings() || width >= kWideFrame;
        if (twoFieldColumns && room && mFrame->fieldRowCount() >= many)
            mColumns = FrameLayout::Columns::Two;
    }
    [[nodiscard]] bool stretches() const { return !mFrame || mFrame->stretches(); }
    [[nodiscard]] Twips height() const { return mFrame ? inside({}).height : kLeastGridHeight; }
    // extra: what it gets beyond its height.
    void addTo(Arrangement &result, Twips left, Twips top, Twips extra) const {
        const Twips own = height() + extra;
        if (!mFrame)
            return result.addGrid(mControl, left, top, mWidth, own);
        result.add(mControl, left, top, mWidth, own);
        result.take(inside(own));
    }

  private:
    [[nodiscard]] Arrangement inside(Twips atLeast) const { return mFrame->arrange(mWidth, mColumns, atLeast); }

    const ControlDefinition &mControl;
    Twips mWidth;
    std::optional<FrameLayout> mFrame;
    FrameLayout::Columns mColumns = FrameLayout::Columns::One;
};
} // namespace

PageLayout::PageLayout(const LayoutText &text, TwipRect area) : mText(text), mArea(area) {}

Arrangement PageLayout::arrange(Controls controls) const {
    const bool onlyGrids = std::ranges::all_of(controls, isGrid);
    if (onlyGrids && controls.size() > 1)
        return matrix(controls);
    const DenseText dense(mText);
    Arrangement best;
    double least = std::numeric_limits<double>::max();
    for (const Plan &plan : plans(controls)) {
        const double habit = habitPrice(plan, controls.size());
        if (habit >= least)
            continue;
        Arrangement result = PageLayout(plan.dense ? dense : mText, mArea).arrangeBy(plan, controls);
        const double total = habit + price(result);
        if (total < least) {
            best = std::move(result);
            least = total;
        }
    }
    return best;
}

std::vector<PageLayout::Plan> PageLayout::plans(Controls controls) {
    std::vector<Plan> result{{controls.size(), false}, {controls.size(), true}};
    if (std::ranges::any_of(controls, isGrid)) {
        for (const bool twoFieldColumns : {false, true})
            result.push_back({controls.size(), twoFieldColumns, 1, true});
        return result;
    }
    for (const double share : {0.5, 0.44, 0.56}) {
        for (const bool twoFieldColumns : {false, true}) {
            for (std::size_t from = 1; from < controls.size(); ++from)
                result.push_back({from, twoFieldColumns, share});
        }
    }
    return result;
}

// Many frames stand in two equal columns, few in one; fields stand in one.
double PageLayout::habitPrice(const Plan &plan, std::size_t count) {
    const bool twoColumns = plan.secondColumnFrom < count;
    double price = twoColumns != (count >= kManyFrames) ? 400 : 0;
    price += plan.twoFieldColumns ? 200 : 0;
    price += plan.dense ? 150 : 0;
    return price + (twoColumns && plan.firstShare != 0.5 ? 100 : 0);
}

// Too much height weighs more than anything else, then grids without room, narrow editing parts and broken captions.
double PageLayout::price(const Arrangement &result) const {
    const double excess = std::max(0, (result.height - mArea.height).count);
    return excess * 1000.0 + result.missingRows.count + 60.0 * result.narrowBoxes + 40.0 * result.wrappedCaptions +
           result.height.count / 100.0;
}

Arrangement PageLayout::arrangeBy(const Plan &plan, Controls controls) const {
    if (plan.secondColumnFrom == controls.size())
        return stack(controls, mArea.left, mArea.width, plan.twoFieldColumns);
    const Twips first = share(mArea.width - kGap, plan.firstShare);
    const Twips second = mArea.width - kGap - first;
    Arrangement result = stack(controls.first(plan.secondColumnFrom), mArea.left, first, plan.twoFieldColumns);
    const Arrangement rest =
        stack(controls.subspan(plan.secondColumnFrom), mArea.left + first + kGap, second, plan.twoFieldColumns);
    result.take(rest);
    result.height = std::max(result.height, rest.height);
    return result;
}

Arrangement PageLayout::stack(Controls controls, Twips left, Twips width, bool twoFieldColumns) const {
    std::vector<StackedControl> stacked;
    Arrangement result;
    qint32 stretching = 0;
    for (const ControlDefinition *control : controls) {
        stacked.emplace_back(mText, *control, width, twoFieldColumns);
        stretching += stacked.back().stretches() ? 1 : 0;
        result.height = result.height + stacked.back().height();
    }
    result.height = result.height + Twips{kGap.count * qint32(stacked.size() - 1)};
    const Twips spare = std::max(Twips{}, mArea.height - result.height);
    const Twips extra{stretching == 0 ? 0 : spare.count / stretching};
    Twips top = mArea.top;
    for (const StackedControl &control : stacked) {
        const Twips more = control.stretches() ? extra : Twips{};
        control.addTo(result, left, top, more);
        top = top + control.height() + more + kGap;
    }
    return result;
}

Arrangement PageLayout::matrix(Controls grids) const {
    const std::size_t across = std::min(kGridsInARow, grids.size());
    const std::size_t down = (grids.size() + across - 1) / across;
    const Twips width{(mArea.width.count - qint32(across - 1) * kGap.count) / qint32(across)};
    const Twips height{(mArea.height.count - qint32(down - 1) * kGap.count) / qint32(down)};
    Arrangement result;
    for (std::size_t i = 0; i < grids.size(); ++i) {
        const auto column = qint32(i % across);
        const auto row = qint32(i / across);
        result.add(*grids[i], {mArea.left.count + column * (width + kGap).count},
                   {mArea.top.count + row * (height + kGap).count}, width, height);
    }
    result.height = mArea.height;
    return result;
}
