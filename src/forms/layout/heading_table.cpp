#include "heading_table.h"

#include "caption_fit.h"
#include "form_definition.h"

#include <algorithm>
#include <numeric>

namespace {
constexpr Twips kGap{60};
constexpr double kLabelMargin = 230;
constexpr double kTitleMargin = 200;
constexpr double kWidestBox = 2600;
constexpr double kWidestFlag = 1200;
constexpr double kNarrowBox = 850;
constexpr qint32 kTitlePadding = 60;

// Factor of the column's labelled fields; 0 where none has a label.
double factorOf(const TableColumn &column) {
    double factor = 0;
    for (const FieldRow &row : column.rows)
        factor = factor == 0 ? row.front()->labelWidthFactor() : factor;
    return factor;
}

Twips followersWidth(const TableColumn &column) {
    const bool callUps = std::ranges::any_of(column.rows, [](const FieldRow &row) { return row.size() > 1; });
    return callUps ? Twips{1110} : Twips{};
}

bool onlyFlags(const TableColumn &column) {
    return std::ranges::all_of(column.rows,
                               [](const FieldRow &row) { return row.front()->typeName == u"fldCheckboxField"; });
}

double naturalWidth(const TableColumn &column, double box) {
    const double factor = factorOf(column);
    if (onlyFlags(column) && factor == 0)
        return std::min(box, kWidestFlag);
    return (factor == 0 ? box + 100 : box / (1 - factor)) + followersWidth(column).count;
}
} // namespace

HeadingTable::HeadingTable(const LayoutText &text, std::vector<TableColumn> columns, Twips width)
    : mText(text), mColumns(std::move(columns)), mWidth(width.count - (double(mColumns.size()) - 1) * kGap.count) {
    chooseWidths();
}

void HeadingTable::chooseWidths() {
    const auto sum = [](const std::vector<double> &widths) {
        return std::accumulate(widths.begin(), widths.end(), 0.0);
    };
    std::vector<double> chosen = widths(true);
    const bool starved = std::ranges::any_of(chosen, [](double width) { return width < kNarrowBox; });
    if (starved || sum(chosen) > mWidth)
        chosen = widths(false);
    const double shrink = std::min(1.0, mWidth / sum(chosen));
    for (const double width : chosen)
        mWidths.push_back({qint32(width * shrink)});
}

double HeadingTable::neededWidth(const TableColumn &column, bool wholeCaptions) const {
    const auto fit = [wholeCaptions](const CaptionFit::Measure &measure, const QString &caption) {
        return (wholeCaptions ? measure(caption) : CaptionFit::widestWord(measure, caption)).count;
    };
    const auto label = [this](const QString &text) { return mText.width(text); };
    const auto title = [this](const QString &text) { return mText.titleWidth(text); };
    double needed = 0;
    if (column.heading != nullptr)
        needed = fit(title, mText.caption(*column.heading)) + kTitleMargin;
    for (const FieldRow &row : column.rows) {
        const double factor = row.front()->labelWidthFactor();
        if (factor == 0)
            continue;
        const double width = (fit(label, mText.caption(*row.front())) + kLabelMargin) / factor;
        needed = std::max(needed, width + followersWidth(column).count);
    }
    return needed;
}

// The width of the editing parts at which the columns without a fixed width fill what the others leave.
double HeadingTable::boxWidth(const std::vector<std::optional<double>> &fixed) const {
    double low = 0;
    double high = kWidestBox;
    const auto total = [&](double box) {
        double sum = 0;
        for (std::size_t i = 0; i < mColumns.size(); ++i)
            sum += fixed[i].value_or(naturalWidth(mColumns[i], box));
        return sum;
    };
    while (high - low > 1) {
        const double middle = (low + high) / 2;
        (total(middle) <= mWidth ? low : high) = middle;
    }
    return low;
}

std::vector<double> HeadingTable::widths(bool wholeCaptions) const {
    std::vector<std::optional<double>> fixed(mColumns.size());
    std::vector<double> result(mColumns.size());
    for (std::size_t round = 0; round <= mColumns.size(); ++round) {
        const double box = boxWidth(fixed);
        bool raised = false;
        for (std::size_t i = 0; i < mColumns.size(); ++i) {
            const double needed = neededWidth(mColumns[i], wholeCaptions);
            result[i] = fixed[i].value_or(naturalWidth(mColumns[i], box));
            if (!fixed[i] && result[i] < needed) {
                fixed[i] = needed;
                raised = true;
            }
        }
        if (!raised)
            break;
    }
    return result;
}

Twips HeadingTable::titleHeight(const TableColumn &column, Twips width) const {
    if (column.heading == nullptr)
        return {};
    const double factor = column.heading->labelWidthFactor();
    const double left = factor == 0 ? 100 : width.count * factor - 100;
    const auto measure = [this](const QString &text) { return mText.titleWidth(text); };
    const int lines = CaptionFit::lines(measure, mText.caption(*column.heading), Twips{qint32(width.count - left)});
    return {lines * mText.lineHeight().count + kTitlePadding};
}

Arrangement HeadingTable::arrange(Twips left, Twips top) const {
    Twips title;
    std::vector<Twips> heights;
    std::vector<FieldColumn> fields;
    for (std::size_t i = 0; i < mColumns.size(); ++i) {
        title = std::max(title, titleHeight(mColumns[i], mWidths[i]));
        fields.emplace_back(mText, mColumns[i].rows, mWidths[i] - followersWidth(mColumns[i]),
                            FieldColumn::Fill::Whole);
        const std::vector<Twips> own = fields.back().rowHeights();
        heights.resize(std::max(heights.size(), own.size()), mText.rowHeight());
        std::ranges::transform(own, heights, heights.begin(), [](Twips a, Twips b) { return std::max(a, b); });
    }
    Arrangement result;
    for (const Twips height : heights)
        result.height = result.height + height;
    result.height = result.height + title;
    for (std::size_t i = 0; i < mColumns.size(); ++i) {
        const bool own = mColumns[i].heading == nullptr;
        if (!own)
            result.add(*mColumns[i].heading, left, top, mWidths[i], result.height);
        result.take(fields[i].arrange(own ? left : Twips{}, own ? top + title : title,
                                      std::span(heights).first(mColumns[i].rows.size())));
        left = left + mWidths[i] + kGap;
    }
    return result;
}
