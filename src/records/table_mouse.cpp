#include "table_mouse.h"

#include "cell_painter.h"
#include "tdb_grid.h"

#include <QMouseEvent>

void TableMouse::press(const QMouseEvent &event) {
    const QPoint point = event.position().toPoint();
    const QModelIndex index = mTable.indexAt(point);
    if (!index.isValid())
        return;
    const GridCell cell{index.row(), index.column()};
    const bool wasCurrent = cell == mTable.currentCell();
    const bool keepsBlock = event.button() == Qt::RightButton && mTable.isSelected(cell.row);
    if (keepsBlock || !mTable.MoveTo(cell) || event.button() != Qt::LeftButton)
        return;
    mTable.RemoveSelBookmarks();
    if (mTable.isCheckNow())
        mTable.ToggleCell();
    else if (wasCurrent && mTable.hasListNow() && CellPainter::buttonRect(mTable.CellRect()).contains(point))
        mTable.openDropDown();
}

void TableMouse::doubleClick(const QMouseEvent &event) {
    const QModelIndex index = mTable.indexAt(event.position().toPoint());
    if (!index.isValid() || event.button() != Qt::LeftButton || !mTable.MoveTo({index.row(), index.column()}))
        return;
    if (mTable.isCheckNow())
        mTable.ToggleCell();
    else if (mTable.hasListNow())
        mTable.openDropDown();
    else
        mTable.StartEdit();
}
