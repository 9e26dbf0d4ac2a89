#pragma once

#include "grid_drag.h"

#include <memory>

class GridSurface;
class QMimeData;

// Dragging records between grids. The left button on the head of a selected row drags all selected rows as the text
// that Copy gives, with the move effect; the source keeps its rows. A text of several lines can be dropped where
// records can be added. From another program the drop is a copy, so that nothing is taken away there.
class GridRecordDrag final : public GridDrag {
    Q_OBJECT
  public:
    // Watches the grid's cells and row heads. Both outlive this.
    GridRecordDrag(GridSurface &grid, const FieldServices &services);

    // The data of a drag that starts now.
    [[nodiscard]] std::unique_ptr<QMimeData> TDBGrid1_OLEStartDrag() const;
    [[nodiscard]] bool TDBGrid1_OLEDragOver(const QMimeData &data) const;
    void TDBGrid1_OLEDragDrop(const QMimeData &data);

  private:
    // A click on a selected head is the head's own matter.
    bool arms(const QMouseEvent &press) override;
    void start() override;
    bool targetEvent(QDropEvent &event) override;

    GridSurface &mGrid;
};
