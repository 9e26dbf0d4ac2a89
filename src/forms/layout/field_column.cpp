#include "field_column.h"

#include "caption_fit.h"
#include "form_definition.h"

#include <algorithm>
#include <numeric>

namespace {
// What a field's own layout does with its width: the label ends 200 before the share of its factor, the editing part
// begins 100 before it and ends 100 before the right edge.
constexpr double kLabelMargin = 200;
constexpr double kBoxOffset = 100;
constexpr double kLabelRoom = kLabelMargin + 30; // two pixels lest rounding breaks a caption
constexpr qint32 kCaptionSpacing = 30;           // between broken captions of neighbouring rows
constexpr double kComfortableWidth = 4800;
constexpr double kWantedBox = 1700;
constexpr double kListArrow = 500;     // what a combo keeps for its arrow and its borders
constexpr double kFarthestBox = 4200;  // an editing part further from its label is hard to follow
constexpr double kFarthestList = 5600; // unless a list would cut its items
constexpr double kNarrowBox = 850;
constexpr double kNarrowList = 1300; // shows "None" in every language
constexpr Twips kCallUpWidth{1110};

bool isCallUp(const ControlDefinition &control) { return control.typeName == u"fldSubFormCallUp"; }
bool isIdTracker(const ControlDefinition &control) { return control.typeName == u"fldIdTrackerField"; }
bool isCheckbox(const ControlDefinition &control) { return control.typeName == u"fldCheckboxField"; }
} // namespace

std::vector<FieldRow> fieldRows(std::span<const ControlDefinition *const> fields) {
    std::vector<FieldRow> rows;
    for (const ControlDefinition *field : fields) {
        const bool follows = isCallUp(*field) || field->labelWidthFactor() == 0.0;
        if (follows && !rows.empty())
            rows.back().push_back(field);
        else
            rows.push_back({field});
    }
    return rows;
}

FieldColumn::FieldColumn(const LayoutText &text, std::vector<FieldRow> rows, Twips width, Fill fill)
    : mText(text), mRows(std::move(rows)), mWidth(width) {
    const double common = fill == Fill::Comfortable ? line() : 0;
    for (const FieldRow &row : mRows)
        mRowWidths.push_back(fill == Fill::Whole ? width : Twips{qint32(widthWith(row, common))});
}

// Widest that the row's first field may be: the fields behind it get editing parts of the same width.
double FieldColumn::widestWithFollowers(const FieldRow &row) const {
    double rest = mWidth.count;
    double parts = 1;
    for (std::size_t i = 1; i < row.size(); ++i) {
        rest -= isCallUp(*row[i]) ? kCallUpWidth.count : kBoxOffset;
        parts += isCallUp(*row[i]) ? 0 : 1 - row.front()->labelWidthFactor();
    }
    return rest / parts;
}

// Where the editing parts begin, plus kBoxOffset: width times factor is the same for every field of the column.
double FieldColumn::line() const {
    double most = mWidth.count;
    double wanted = 0;
    for (const FieldRow &row : mRows) {
        const ControlDefinition &field = *row.front();
        const double factor = field.labelWidthFactor();
        if (factor == 0.0)
            continue;
        const double share = isCheckbox(field) || factor == 1.0 ? 0 : factor / (1 - factor);
        const double list = (mText.widestItem(field).count + kListArrow) * share;
        const double box = std::max(std::min(kWantedBox * share, kFarthestBox), std::min(list, kFarthestList));
        const double comfortable = kComfortableWidth * (isCheckbox(field) ? std::min(factor, 0.6) : factor);
        most = std::min(most, factor * widestWithFollowers(row));
        wanted = std::max({wanted, box, comfortable, mText.width(mText.caption(field)).count + kLabelRoom});
    }
    return std::min(wanted, most);
}

// Below it the editing part is too narrow to read.
double FieldColumn::leastBox(const ControlDefinition &field) const {
    return isIdTracker(field) ? kNarrowList
                              : std::clamp(mText.widestItem(field).count + kListArrow, kNarrowBox, kNarrowList);
}

double FieldColumn::widthWith(const FieldRow &row, double line) const {
    const double factor = row.front()->labelWidthFactor();
    if (factor == 0.0)
        return std::min(double(mWidth.count), kComfortableWidth);
    // A field leaves the common line where that saves its caption from breaking, or its editing part from being too
    // narrow to read.
    const ControlDefinition &field = *row.front();
    const double most = widestWithFollowers(row);
    const double caption = (mText.width(mText.caption(field)).count + kLabelRoom) / factor;
    const double onLine = line / factor;
    const bool narrow = !isCheckbox(field) && onLine * (1 - factor) < leastBox(field);
    const double box = narrow ? std::min(most, leastBox(field) / (1 - factor)) : 0;
    return std::max({onLine, caption <= most ? caption : 0, box});
}

int FieldColumn::captionLines(const FieldRow &row, Twips width) const {
    const ControlDefinition &field = *row.front();
    const double factor = field.labelWidthFactor();
    if (factor == 0.0)
        return 1;
    const Twips label{qint32(width.count * factor - kLabelMargin)};
    const auto measure = [this](const QString &text) { return mText.width(text); };
    return std::max(1, CaptionFit::lines(measure, mText.caption(field), label));
}

std::vector<Twips> FieldColumn::rowHeights() const {
    std::vector<Twips> heights;
    for (std::size_t i = 0; i < mRows.size(); ++i) {
        const int lines = captionLines(mRows[i], mRowWidths[i]);
        const Twips needed{lines * mText.lineHeight().count + kCaptionSpacing};
        heights.push_back(lines == 1 ? mText.rowHeight() : std::max(mText.rowHeight(), needed));
    }
    return heights;
}

Arrangement FieldColumn::arrange(Twips left, Twips top, std::span<const Twips> heights) const {
    Arrangement result;
    for (std::size_t i = 0; i < mRows.size(); ++i) {
        addRow(result, mRows[i], mRowWidths[i], left, top, heights[i]);
        result.wrappedCaptions += captionLines(mRows[i], mRowWidths[i]) > 1 ? 1 : 0;
        top = top + heights[i];
    }
    result.height = std::accumulate(heights.begin(), heights.end(), Twips{});
    return result;
}

void FieldColumn::addRow(Arrangement &result, const FieldRow &row, Twips rowWidth, Twips left, Twips top,
                         Twips height) const {
    const ControlDefinition &first = *row.front();
    const double box = rowWidth.count * (1 - first.labelWidthFactor());
    result.narrowBoxes += !isCheckbox(first) && box - kBoxOffset < kNarrowBox ? 1 : 0;
    result.add(first, left, top, rowWidth, height);
    Twips next = left + rowWidth;
    for (std::size_t i = 1; i < row.size(); ++i) {
        const Twips width = isCallUp(*row[i]) ? kCallUpWidth : Twips{qint32(box + kBoxOffset)};
        result.add(*row[i], next, top, width, height);
        next = next + width;
    }
}
