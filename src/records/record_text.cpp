#include "record_text.h"

#include "grid_surface.h"
#include "value_text.h"

#include <QStringList>

#include <algorithm>

namespace {
const auto kLineEnd = QStringLiteral("\r\n");

QStringList captions(const GridSurface &grid) {
    QStringList cells;
    for (qint32 column = 0; column < grid.ColumnCount(); ++column)
        cells << grid.ColumnAt(column).caption;
    return cells;
}

QString cellsOf(const XArrayDB &rows, qint32 row) {
    QStringList cells;
    for (qint32 column = 0; column <= rows.UpperBound(2); ++column)
        cells << ValueText::of(rows.Value(row, column));
    return cells.join(u'\t');
}
} // namespace

QString RecordText::withCrLf(const QString &text) {
    QString result = text;
    result.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    return result.replace(u'\n', QStringLiteral("\r\n"));
}

bool RecordText::isRecords(const QString &text) { return text.contains(u'\r') || text.contains(u'\t'); }

bool RecordText::isBlock(const GridSurface &grid, const QString &text) {
    const QStringList heads = captions(grid);
    const QStringList first = text.section(u'\r', 0, 0).split(u'\t');
    const bool named = std::ranges::all_of(first, [&](const QString &cell) { return heads.contains(cell.trimmed()); });
    return first.size() < heads.size() && !named;
}

QString RecordText::of(const GridSurface &grid, const std::vector<qint32> &rows) {
    const XArrayDB &array = grid.DisplayArray();
    QString text = captions(grid).join(u'\t') + kLineEnd;
    for (const qint32 row : rows)
        text += cellsOf(array, row) + kLineEnd;
    return text;
}
