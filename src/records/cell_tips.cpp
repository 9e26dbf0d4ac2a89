#include "cell_tips.h"

#include "cell_painter.h"
#include "tdb_grid.h"

#include <QHelpEvent>
#include <QToolTip>

void FetchCellTips(const TDBGrid &table, const QHelpEvent &event) {
    const QModelIndex index = table.indexAt(event.pos());
    const QString text = index.data(Qt::DisplayRole).toString();
    const bool withButton = table.currentCell() == GridCell{index.row(), index.column()} && table.hasListNow();
    const QRect room = CellPainter::textRect(table.visualRect(index), withButton);
    const bool fits = text.isEmpty() || table.fontMetrics().horizontalAdvance(text) <= room.width();
    QToolTip::showText(event.globalPos(),
                       fits ? QString() : QStringLiteral("<span>%1</span>").arg(text.toHtmlEscaped()), table.viewport(),
                       table.visualRect(index));
}
