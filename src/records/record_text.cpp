#include "record_text.h"

#include "grid_surface.h"
#include "value_text.h"

#include <QStringList>

namespace {
const auto kLineEnd = QStringLiteral("\r\n");

QString captions(const GridSurface &grid) {
    QStringList cells;
    for (qint32 column = 0; column < grid.ColumnCount(); ++column)
        cells << grid.ColumnAt(column).caption;
    return cells.join(u'\t');
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

QString RecordText::of(const GridSurface &grid, const std::vector<qint32> &rows) {
    const XArrayDB &array = grid.DisplayArray();
    QString text = captions(grid) + kLineEnd;
    for (const qint32 row : rows)
        text += cellsOf(array, row) + kLineEnd;
    return text;
}
