#include "frame_layout.h"

#include "caption_fit.h"
#include "control_classes.h"
#include "form_definition.h"
#include "heading_table.h"

#include <algorithm>

namespace {
constexpr Twips kSide{120};
constexpr Twips kBottom{90};
constexpr qint32 kTitlePadding = 90;
constexpr Twips kColumnGap{180};
constexpr Twips kLeastGridHeight{1020};

std::vector<FieldRow> oneEach(const std::vector<ControlDefinition> &controls) {
    std::vector<FieldRow> rows;
    rows.reserve(controls.size());
    for (const ControlDefinition &control : controls)
        rows.push_back({&control});
    return rows;
}
} // namespace

FrameLayout::FrameLayout(const LayoutText &text, const ControlDefinition &frame) : mText(text), mFrame(frame) {
    std::vector<const ControlDefinition *> fields;
    for (const ControlDefinition &control : frame.controls) {
        if (ControlClasses::isFrame(control.typeName))
            mHeadings.push_back(&control);
        else if (control.typeName == u"fldGridField")
            mGrids.push_back(&control);
        else
            fields.push_back(&control);
    }
    mRows = fieldRows(fields);
}

bool FrameLayout::bordered() const { return !mFrame.properties.value(QStringLiteral("HideThisFrame")).toBool(); }

Twips FrameLayout::topInset() const {
    const QString title = mText.caption(mFrame);
    return title.isEmpty() ? Twips{} : Twips{mText.lineHeight().count + kTitlePadding};
}

Arrangement FrameLayout::arrange(Twips width, Columns columns, Twips atLeast) const {
    const Twips side = bordered() ? kSide : Twips{};
    const Twips bottom = bordered() ? kBottom : Twips{};
    const Twips inner = width - side - side;
    Arrangement result;
    result.height = topInset();
    if (mHeadings.size() == 1 && !mRows.empty()) {
        const HeadingTable table(mText, {{nullptr, mRows}, {mHeadings.front(), oneEach(mHeadings.front()->controls)}},
                                 inner);
        const Arrangement piece = table.arrange(side, result.height);
        result.take(piece);
        result.height = result.height + piece.height;
    } else {
        addFields(result, side, inner, columns);
        addHeadings(result, side, inner);
    }
    addGrids(result, side, inner, atLeast - bottom);
    result.height = std::max(result.height + bottom, atLeast);
    return result;
}

void FrameLayout::addFields(Arrangement &result, Twips left, Twips width, Columns columns) const {
    const std::size_t count = columns == Columns::Two ? 2 : 1;
    const Twips each{(width.count - qint32(count - 1) * kColumnGap.count) / qint32(count)};
    const std::size_t perColumn = (mRows.size() + count - 1) / count;
    std::vector<FieldColumn> parts;
    std::vector<Twips> heights(perColumn, mText.rowHeight());
    for (std::size_t from = 0; from < mRows.size(); from += perColumn) {
        const auto first = mRows.begin() + std::ptrdiff_t(from);
        const auto last = mRows.begin() + std::ptrdiff_t(std::min(from + perColumn, mRows.size()));
        parts.emplace_back(mText, std::vector<FieldRow>(first, last), each, FieldColumn::Fill::Comfortable);
        const std::vector<Twips> own = parts.back().rowHeights();
        std::ranges::transform(own, heights, heights.begin(), [](Twips a, Twips b) { return std::max(a, b); });
    }
    Twips used;
    for (const FieldColumn &part : parts) {
        const std::span<const Twips> own = std::span(heights).first(part.rowHeights().size());
        const Arrangement piece = part.arrange(left, result.height, own);
        result.take(piece);
        used = std::max(used, piece.height);
        left = left + each + kColumnGap;
    }
    result.height = result.height + used;
}

void FrameLayout::addHeadings(Arrangement &result, Twips left, Twips width) const {
    if (mHeadings.empty())
        return;
    std::vector<TableColumn> columns;
    for (const ControlDefinition *heading : mHeadings)
        columns.push_back({heading, oneEach(heading->controls)});
    const Arrangement piece = HeadingTable(mText, std::move(columns), width).arrange(left, result.height);
    result.take(piece);
    result.height = result.height + piece.height;
}

// All grids share what is left above bottom.
void FrameLayout::addGrids(Arrangement &result, Twips left, Twips width, Twips bottom) const {
    for (std::size_t i = 0; i < mGrids.size(); ++i) {
        const qint32 share = (bottom - result.height).count / qint32(mGrids.size() - i);
        const Twips height = std::max(kLeastGridHeight, Twips{share});
        result.addGrid(*mGrids[i], left, result.height, width, height);
        result.height = result.height + height;
    }
}
