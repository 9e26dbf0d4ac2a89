#include "grid_heads.h"

#include "column_heads.h"
#include "grid_lists.h"
#include "string_utilities.h"
#include "tdb_grid.h"
#include "transformer.h"
#include "translation.h"

#include <algorithm>
#include <cmath>

namespace {
// What the row heads and the frame take of a grid, at the least.
constexpr Twips kBesideColumns{340};
constexpr Twips kLabelColumn{800};
constexpr int kCaptionMargin = 12; // pixels
constexpr int kFontMargin = 3;
constexpr qint32 kShortList = 8;

struct RowHeight {
    int dotsPerInch;
    int pixels;
};
constexpr RowHeight kRowHeights[] = {{96, 16}, {120, 18}};
constexpr double kRowHeightOfAnInch = 0.16;
constexpr auto kUnbadged = "Unbadged";
} // namespace

int gridRowHeight(const TDBGrid &table) {
    const auto *const known = std::ranges::find(kRowHeights, table.logicalDpiX(), &RowHeight::dotsPerInch);
    const int byScreen =
        known != std::end(kRowHeights) ? known->pixels : int(std::lround(table.logicalDpiY() * kRowHeightOfAnInch));
    return std::max(byScreen, table.fontMetrics().height() + kFontMargin);
}

QString GridHeads::caption(const QString &uiid) const {
    QString label;
    mGrid.Raise(FieldEvent(QStringLiteral("GetLabel"), in(uiid), out(label)));
    return mServices.translation.NLSStr(label);
}

// The design's width, but room for the longest word of the caption.
int GridHeads::pixelWidth(const TDBGrid &table, const ColumnDetails &details, const QString &caption) const {
    const QFontMetrics metrics = table.fontMetrics();
    if (details.width.count == 0)
        return metrics.horizontalAdvance(caption) + kCaptionMargin;
    int width = TwipScale::of(table).toPixels(details.width).count;
    for (const QString &word : caption.split(u' '))
        width = std::max(width, metrics.horizontalAdvance(word) + kCaptionMargin);
    return width;
}

// Lists of many items would push the other columns out of sight.
int GridHeads::widestItem(const QFontMetrics &metrics, const XArrayDB &items) {
    int width = 0;
    for (qint32 row = 0; row <= items.UpperBound(1) && items.UpperBound(1) < kShortList; ++row)
        width = std::max(width, metrics.horizontalAdvance(items.Value(row, 0).toString()));
    return width;
}

void GridHeads::widenForItems(TDBGrid &table, const GridLists &lists) const {
    for (qint32 column = 0; column < table.columnHeads().count(); ++column) {
        if (const int item = widestItem(table.fontMetrics(), lists.convertedItems(column)); item > 0)
            table.columnHeads().widen(column, item + kCaptionMargin);
    }
}

void GridHeads::SetColumns(GridModel &model, TDBGrid &table) const {
    std::vector<GridModel::Column> columns;
    std::vector<int> widths;
    Twips sum = kBesideColumns;
    if (!mGrid.Design().Dynamic) {
        columns = {{QStringLiteral("ID"), ColumnType::kText, true, true},
                   {QStringLiteral("Value"), ColumnType::kText, false, true}};
        widths = {TwipScale::of(table).toPixels(kLabelColumn).count, 0};
    }
    for (qint32 i = 0; mGrid.Design().Dynamic && i < mColumns.count(); ++i) {
        const ColumnDetails &details = mColumns.details(i);
        QString text = TrimBlanks(caption(details.uiid));
        if (mGrid.Terminated())
            return;
        if (text.isEmpty())
            text = QLatin1String(kUnbadged);
        if (text == QLatin1String(kUnbadged) && !IsExecutingFromIDE())
            continue;
        const bool isLast = i == mColumns.count() - 1;
        const bool takesTheRest =
            isLast && details.width.count == 0 && table.width() >= TwipScale::of(table).toPixels(sum).count;
        const bool enabled = mGrid.Component().GetFieldEnabled(details.uiid, 1);
        columns.push_back({text, details.type, details.locked, enabled});
        widths.push_back(takesTheRest ? 0 : pixelWidth(table, details, text));
        sum = sum + details.width;
    }
    model.setColumns(columns);
    table.setColumnWidths(widths);
}

QStringList GridHeads::GetHeader() const {
    QStringList header;
    for (const QString &uiid : mColumns.uiids()) {
        const qint32 width = mGrid.Component().GetUIWidth(uiid);
        header.push_back(u' ' + LeftPadString(caption(uiid), u' ', width));
    }
    return header;
}
