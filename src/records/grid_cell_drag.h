#pragma once

#include "grid_cell_writer.h"
#include "grid_drag.h"
#include "grid_surface.h"

// Dragging one cell's value to a cell of a grid in the same window, by the left button. What is dropped counts as an
// edit of the target cell. The drag never selects cells and never leaves the window.
class GridCellDrag final : public GridDrag {
    Q_OBJECT
  public:
    // Watches the grid's cells. Both outlive this.
    GridCellDrag(GridSurface &grid, const FieldServices &services);

    // Prepares the drag of a cell: commits the present cell and makes the dragged one current. False: no drag.
    [[nodiscard]] bool TDBGrid1_DragCell(const GridCell &cell);
    // The value of another cell is dropped at this point of the cells' surface.
    void TDBGrid1_DragDrop(const QString &value, const QPoint &point);

  private:
    bool arms(const QMouseEvent &press) override;
    void start() override;
    bool targetEvent(QDropEvent &event) override;
    [[nodiscard]] std::optional<GridCell> cellAt(const QPoint &point) const;
    // False: refused, and the cell holds what it held.
    [[nodiscard]] bool writeCell(const GridCell &cell, const QString &value);

    GridSurface &mGrid;
    GridCellWriter mCells;
    GridCell mArmed; // the cell that was pressed
};
