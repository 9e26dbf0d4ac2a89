#pragma once

#include "window_services.h"

#include <QObject>
#include <QPoint>

#include <memory>
#include <optional>

class GridSurface;
class QDropEvent;
class QMimeData;
class QMouseEvent;

// Dragging records between grids. The left button on the head of a selected row drags all selected rows as the text
// that Copy gives, with the move effect; the source keeps its rows. A text of several lines can be dropped where
// records can be added. From another program the drop is a copy, so that nothing is taken away there.
class GridRecordDrag final : public QObject {
    Q_OBJECT
  public:
    // Watches the grid's cells and row heads. Both outlive this.
    GridRecordDrag(GridSurface &grid, const FieldServices &services);

    // The data of a drag that starts now.
    [[nodiscard]] std::unique_ptr<QMimeData> TDBGrid1_OLEStartDrag() const;
    [[nodiscard]] bool TDBGrid1_OLEDragOver(const QMimeData &data) const;
    void TDBGrid1_OLEDragDrop(const QMimeData &data);

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    // True: the head does not see the event. A click on a selected head is the head's own matter.
    bool headEvent(const QMouseEvent &event);
    [[nodiscard]] bool arms(const QMouseEvent &press) const;
    bool targetEvent(QDropEvent &event);
    void start();

    GridSurface &mGrid;
    ErrorReport &mErrors;
    std::optional<QPoint> mPressedAt; // on a selected head; pixels
};
