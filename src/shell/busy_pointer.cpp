#include "busy_pointer.h"

#include <QCursor>
#include <QGuiApplication>

BusyPointer::~BusyPointer() {
    if (mMouseBusyCount > 0 && qApp != nullptr)
        QGuiApplication::restoreOverrideCursor();
}

void BusyPointer::MouseHourglass() {
    if (++mMouseBusyCount == 1)
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
}

void BusyPointer::MouseDefault() {
    if (mMouseBusyCount == 0)
        return;
    if (--mMouseBusyCount == 0)
        QGuiApplication::restoreOverrideCursor();
}

ArrowGuard::ArrowGuard(const BusyPointer &pointer) : mPushed(pointer.MouseBusyCount() > 0) {
    if (mPushed)
        QGuiApplication::setOverrideCursor(Qt::ArrowCursor);
}

ArrowGuard::~ArrowGuard() {
    if (mPushed)
        QGuiApplication::restoreOverrideCursor();
}
