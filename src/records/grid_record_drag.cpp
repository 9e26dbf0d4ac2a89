#include "grid_record_drag.h"

#include "cell_drag_data.h"
#include "common_error_handler.h"
#include "grid_surface.h"
#include "igrid.h"
#include "record_text.h"

#include <QDrag>
#include <QDropEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QWidget>

#include <algorithm>

GridRecordDrag::GridRecordDrag(GridSurface &grid, const FieldServices &services)
    : GridDrag(grid.Table().HeadsSurface(), services), mGrid(grid) {
    watch(grid.Table().CellsSurface());
    watch(grid.Table().HeadsSurface());
}

bool GridRecordDrag::arms(const QMouseEvent &press) {
    if (press.modifiers() != Qt::NoModifier)
        return false;
    const auto row = mGrid.Table().RowContaining(press.position().toPoint().y());
    const std::vector<qint32> selected = mGrid.Table().SelBookmarks();
    return row && std::ranges::find(selected, *row) != selected.end();
}

void GridRecordDrag::start() {
    auto *drag = new QDrag(&mGrid.Table().HeadsSurface()); // deletes itself when the drag has ended
    drag->setMimeData(TDBGrid1_OLEStartDrag().release());
    drag->exec(Qt::MoveAction, Qt::MoveAction);
}

std::unique_ptr<QMimeData> GridRecordDrag::TDBGrid1_OLEStartDrag() const {
    auto data = std::make_unique<QMimeData>();
    data->setText(RecordText::of(mGrid, mGrid.Table().SelBookmarks()));
    return data;
}

bool GridRecordDrag::TDBGrid1_OLEDragOver(const QMimeData &data) const {
    return mGrid.Design().ButtonAdd && data.hasText() &&
           RecordText::withCrLf(data.text()).contains(QStringLiteral("\r\n"));
}

void GridRecordDrag::TDBGrid1_OLEDragDrop(const QMimeData &data) try {
    if (!data.hasText() || !RecordText::withCrLf(data.text()).contains(QStringLiteral("\r\n")))
        return;
    Igrid *const grid = &mGrid.Grid();
    const QMimeData *const records = &data;
    mGrid.Raise(FieldEvent(QStringLiteral("ImportRecordByDrop"), in(grid), in(grid->Igrid_GetUIIDList()), in(records)));
}
ERROR_TAIL()

bool GridRecordDrag::targetEvent(QDropEvent &event) {
    const QMimeData &data = *event.mimeData();
    if (CellDragData::isCell(data))
        return false;
    const bool taken = TDBGrid1_OLEDragOver(data);
    event.setAccepted(taken);
    if (!taken)
        return true;
    event.setDropAction(event.source() == nullptr ? Qt::CopyAction : Qt::MoveAction);
    if (event.type() == QEvent::Drop)
        TDBGrid1_OLEDragDrop(data);
    return true;
}
