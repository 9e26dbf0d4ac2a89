#include "splitter_bar.h"

#include "twips.h"

#include <QCursor>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOption>
#include <QTimer>

SplitterBar::SplitterBar(QWidget *parent) : QWidget(parent) {
    setObjectName(QStringLiteral("fraSplitter"));
    setAccessibleName(QStringLiteral("Splitter"));
    setCursor(Qt::SplitHCursor);
}

void SplitterBar::mousePressEvent(QMouseEvent *event) {
    if (event->button() == Qt::LeftButton && mHandler != nullptr)
        mHandler->fraSplitter_MouseDown();
}

void SplitterBar::mouseMoveEvent(QMouseEvent *event) {
    if (!(event->buttons() & Qt::LeftButton))
        return;
    moveTo(event->position().toPoint().x());
    // The bar has caught up: its layout follows even if the pointer rests from now on.
    QTimer::singleShot(0, this, [this] { moveTo(mapFromGlobal(QCursor::pos()).x()); });
}

void SplitterBar::moveTo(int pixels) {
    if (mHandler != nullptr)
        mHandler->fraSplitter_MouseMove(TwipScale::of(*this).ofMeasure(Pixels{pixels}).count);
}

void SplitterBar::mouseReleaseEvent(QMouseEvent *event) {
    if (event->button() == Qt::LeftButton && mHandler != nullptr)
        mHandler->fraSplitter_MouseUp();
}

void SplitterBar::mouseDoubleClickEvent(QMouseEvent *event) {
    if (event->button() == Qt::LeftButton && mHandler != nullptr)
        mHandler->fraSplitter_DblClick();
}

void SplitterBar::paintEvent(QPaintEvent * /*event*/) {
    QStyleOption option;
    option.initFrom(this);
    option.state |= QStyle::State_Horizontal;
    QPainter painter(this);
    style()->drawControl(QStyle::CE_Splitter, &option, &painter, this);
}
