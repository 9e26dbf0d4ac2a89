#include "navigator_slider.h"

#include <QSignalBlocker>
#include <QWheelEvent>

NavigatorSlider::NavigatorSlider(QWidget *parent) : QSlider(Qt::Horizontal, parent) {
    setTracking(false);
    SetRange(0, 1, 0);
}

void NavigatorSlider::SetRange(int minimum, int maximum, int tickFrequency) {
    const QSignalBlocker silent(this);
    setRange(minimum, maximum);
    setTickInterval(tickFrequency);
    setTickPosition(tickFrequency == 0 ? NoTicks : TicksBelow);
    setPageStep(qMax(1, tickFrequency));
}

void NavigatorSlider::wheelEvent(QWheelEvent *event) {
    if (hasFocus())
        QSlider::wheelEvent(event);
    else
        event->ignore();
}

// A refused move shows a message, which takes the release of the button: a repeated move would then never end.
void NavigatorSlider::mousePressEvent(QMouseEvent *event) {
    QSlider::mousePressEvent(event);
    setRepeatAction(SliderNoAction);
}
