#pragma once

#include "grid_cell_writer.h"
#include "grid_surface.h"
#include "window_services.h"

#include <QObject>
#include <QPoint>

class QDropEvent;
class QMouseEvent;

// Dragging one cell's value to a cell of a grid in the same window, by the left button. What is dropped counts as an
// edit of the target cell. The drag never selects cells and never leaves the window.
class GridCellDrag final : public QObject {
    Q_OBJECT
  public:
    // Watches the grid's cells. Both outlive this.
    GridCellDrag(GridSurface &grid, const FieldServices &services);

    // Prepares the drag of a cell: commits the present cell and makes the dragged one current. False: no drag.
    [[nodiscard]] bool TDBGrid1_DragCell(const GridCell &cell);
    // The value of another cell is dropped at this point of the cells' surface.
    void TDBGrid1_DragDrop(const QString &value, const QPoint &point);

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    bool mouseEvent(const QMouseEvent &event);
    bool targetEvent(QDropEvent &event);
    void start();
    [[nodiscard]] std::optional<GridCell> cellAt(const QPoint &point) const;
    // False: refused, and the cell holds what it held.
    [[nodiscard]] bool writeCell(const GridCell &cell, const QString &value);

    GridSurface &mGrid;
    ErrorReport &mErrors;
    GridCellWriter mCells;
    std::optional<GridCell> mArmed;
    QPoint mPressedAt; // pixels, on the cells' surface
};
