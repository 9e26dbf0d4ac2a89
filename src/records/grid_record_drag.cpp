#include "grid_record_drag.h"

#include "cell_drag_data.h"
#include "common_error_handler.h"
#include "grid_surface.h"
#include "igrid.h"
#include "record_text.h"

#include <QApplication>
#include <QDrag>
#include <QDropEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QWidget>

#include <algorithm>

GridRecordDrag::GridRecordDrag(GridSurface &grid, const FieldServices &services)
    : mGrid(grid), mErrors(services.errors) {
    for (QWidget *surface : {&grid.Table().CellsSurface(), &grid.Table().HeadsSurface()}) {
        surface->setAcceptDrops(true);
        surface->installEventFilter(this);
    }
}

bool GridRecordDrag::eventFilter(QObject *watched, QEvent *event) try {
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
        return watched == &mGrid.Table().HeadsSurface() && headEvent(static_cast<QMouseEvent &>(*event));
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
        return targetEvent(static_cast<QDropEvent &>(*event));
    default:
        return QObject::eventFilter(watched, event);
    }
}
ERROR_TAIL(false)

bool GridRecordDrag::headEvent(const QMouseEvent &event) {
    const QPoint point = event.position().toPoint();
    if (event.type() != QEvent::MouseMove) {
        mPressedAt = arms(event) ? std::optional(point) : std::nullopt;
        return false;
    }
    if (!mPressedAt)
        return false;
    if ((point - *mPressedAt).manhattanLength() >= QApplication::startDragDistance())
        start();
    return true;
}

bool GridRecordDrag::arms(const QMouseEvent &press) const {
    if (press.type() != QEvent::MouseButtonPress || press.button() != Qt::LeftButton ||
        press.modifiers() != Qt::NoModifier)
        return false;
    const auto row = mGrid.Table().RowContaining(press.position().toPoint().y());
    const std::vector<qint32> selected = mGrid.Table().SelBookmarks();
    return row && std::ranges::find(selected, *row) != selected.end();
}

void GridRecordDrag::start() {
    mPressedAt.reset();
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
