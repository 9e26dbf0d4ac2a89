#include "grid_drag.h"

#include "common_error_handler.h"

#include <QApplication>
#include <QDropEvent>
#include <QMouseEvent>
#include <QWidget>

GridDrag::GridDrag(const QWidget &source, const FieldServices &services) : mErrors(services.errors), mSource(source) {}

void GridDrag::watch(QWidget &surface) {
    surface.setAcceptDrops(true);
    surface.installEventFilter(this);
}

bool GridDrag::eventFilter(QObject *watched, QEvent *event) try {
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
        return watched == &mSource && mouseEvent(static_cast<QMouseEvent &>(*event));
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
        return targetEvent(static_cast<QDropEvent &>(*event));
    default:
        return QObject::eventFilter(watched, event);
    }
}
ERROR_TAIL(false)

// A click stays the surface's own matter; an armed move never reaches it: it would take cursor or selection along.
bool GridDrag::mouseEvent(const QMouseEvent &event) {
    const QPoint point = event.position().toPoint();
    if (event.type() != QEvent::MouseMove) {
        const bool isPress = event.type() == QEvent::MouseButtonPress && event.button() == Qt::LeftButton;
        mPressedAt = isPress && arms(event) ? std::optional(point) : std::nullopt;
        return false;
    }
    if (!mPressedAt)
        return false;
    if ((point - *mPressedAt).manhattanLength() >= QApplication::startDragDistance()) {
        mPressedAt.reset();
        start();
    }
    return true;
}
