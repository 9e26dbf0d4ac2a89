#pragma once

#include "window_services.h"

#include <QObject>
#include <QPoint>

#include <optional>

class QDropEvent;
class QMouseEvent;
class QWidget;

// One kind of drag from and to a grid: a press of the left button on the source arms it, a move far enough starts it.
class GridDrag : public QObject {
    Q_OBJECT
  protected:
    // source: the surface that is pressed; outlives this.
    GridDrag(const QWidget &source, const FieldServices &services);

    // Watches a surface that is pressed or dropped on; it outlives this.
    void watch(QWidget &surface);
    bool eventFilter(QObject *watched, QEvent *event) override;

    // Whether this press of the left button begins a drag.
    virtual bool arms(const QMouseEvent &press) = 0;
    virtual void start() = 0;
    // True: nobody else looks at what is dragged over a surface, or dropped there.
    virtual bool targetEvent(QDropEvent &event) = 0;

    ErrorReport &mErrors;

  private:
    bool mouseEvent(const QMouseEvent &event);

    const QWidget &mSource;
    std::optional<QPoint> mPressedAt; // pixels, on the source
};
