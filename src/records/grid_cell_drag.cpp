#include "grid_cell_drag.h"

#include "cell_drag_data.h"
#include "common_error_handler.h"
#include "ifield.h"

#include <QDrag>
#include <QDropEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QWidget>

namespace {
// What the current cell holds, to be put back after a refusal.
class CellCopy {
  public:
    CellCopy(GridSurface &grid, const GridCell &cell)
        : mGrid(grid), mCell(cell), mText(grid.Table().Text()),
          mShown(grid.DisplayArray().Value(cell.row, cell.column)) {
        if (grid.Translated())
            mSource = grid.SourceArray().Value(cell.row, cell.column);
    }
    void putBack() const {
        mGrid.Table().SetText(mText);
        mGrid.DisplayArray().SetValue(mCell.row, mCell.column, mShown);
        if (mGrid.Translated())
            mGrid.SourceArray().SetValue(mCell.row, mCell.column, mSource);
        mGrid.Table().Refresh();
    }

  private:
    GridSurface &mGrid;
    GridCell mCell;
    QString mText;
    QVariant mShown;
    QVariant mSource;
};
} // namespace

GridCellDrag::GridCellDrag(GridSurface &grid, const FieldServices &services)
    : GridDrag(grid.Table().CellsSurface(), services), mGrid(grid), mCells(grid) {
    watch(grid.Table().CellsSurface());
}

bool GridCellDrag::arms(const QMouseEvent &press) {
    const auto cell = cellAt(press.position().toPoint());
    mArmed = cell.value_or(GridCell());
    return cell.has_value();
}

bool GridCellDrag::targetEvent(QDropEvent &event) {
    if (!CellDragData::isCell(*event.mimeData()))
        return false;
    const QPoint point = event.position().toPoint();
    const auto cell = cellAt(point);
    const auto value = CellDragData::textFor(mGrid.Table().CellsSurface(), *event.mimeData());
    const bool taken = value && cell && GridCellWriter::takesText(mGrid, cell->column);
    event.setAccepted(taken);
    if (!taken)
        return true;
    event.setDropAction(Qt::CopyAction);
    if (event.type() == QEvent::Drop)
        TDBGrid1_DragDrop(*value, point);
    return true;
}

std::optional<GridCell> GridCellDrag::cellAt(const QPoint &point) const {
    const auto row = mGrid.Table().RowContaining(point.y());
    const auto column = mGrid.Table().ColContaining(point.x());
    if (!row || !column)
        return std::nullopt;
    return GridCell{*row, *column};
}

bool GridCellDrag::TDBGrid1_DragCell(const GridCell &cell) {
    if (cell.column < 0 || cell.column >= mGrid.ColumnCount())
        return false;
    const GridColumnFacts column = mGrid.ColumnAt(cell.column);
    if (!mGrid.Field().Ifield_GetEnabled() || mGrid.Design().ReadOnly || !column.enabled)
        return false;
    bool cancel = false;
    mGrid.Validate(cancel);
    if (cancel || mGrid.Terminated())
        return false;
    if (column.mayTakeFocus)
        mGrid.Table().Update();
    return !mGrid.Terminated() && mGrid.Table().MoveTo(cell);
}

// The form may be closed while the drag is under way: nothing of it is touched afterwards.
void GridCellDrag::start() {
    if (!TDBGrid1_DragCell(mArmed))
        return;
    QWidget &cells = mGrid.Table().CellsSurface();
    auto *drag = new QDrag(&cells); // deletes itself when the drag has ended
    drag->setMimeData(CellDragData::make(cells, mGrid.Table().Text()).release());
    drag->exec(Qt::CopyAction, Qt::CopyAction);
}

void GridCellDrag::TDBGrid1_DragDrop(const QString &value, const QPoint &point) try {
    const auto cell = cellAt(point);
    if (!cell || !GridCellWriter::takesText(mGrid, cell->column))
        return;
    const qint32 lastColumn = mGrid.Table().Col();
    if (!mGrid.Table().MoveTo(*cell) || !writeCell(*cell, value))
        return;
    mGrid.RowColChange(lastColumn);
    const qint32 record = mGrid.Field().Ifield_GetRecordNr();
    mGrid.Raise(FieldEvent(QStringLiteral("Change"), in(record)));
}
ERROR_TAIL()

bool GridCellDrag::writeCell(const GridCell &cell, const QString &value) {
    if (mGrid.Terminated())
        return false;
    const CellCopy before(mGrid, cell);
    mCells.SetCellValue(value);
    bool cancel = false;
    if (!mGrid.Terminated())
        mGrid.Validate(cancel);
    if (cancel && !mGrid.Terminated())
        before.putBack();
    return !cancel && !mGrid.Terminated();
}
