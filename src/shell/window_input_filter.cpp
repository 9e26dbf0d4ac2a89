#include "window_input_filter.h"

#include <QAction>
#include <QApplication>
#include <QEvent>
#include <QWidget>
#include <QWindow>

namespace {
bool isInput(QEvent::Type type) {
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::ContextMenu:
    case QEvent::Close:
        return true;
    default:
        return false;
    }
}
} // namespace

WindowInputFilter::WindowInputFilter(QWidget &window) : mWindow(window) { qApp->installEventFilter(this); }

bool WindowInputFilter::eventFilter(QObject *receiver, QEvent *event) {
    if (!mDisabled || !isInput(event->type()) || !isOfWindow(receiver))
        return false;
    if (event->type() == QEvent::Close)
        event->ignore();
    return true;
}

bool WindowInputFilter::isOfWindow(const QObject *receiver) const {
    if (const auto *widget = qobject_cast<const QWidget *>(receiver))
        return widget->window() == &mWindow;
    if (qobject_cast<const QWindow *>(receiver) != nullptr)
        return receiver == mWindow.windowHandle();
    // The window's commands; those of a modal box are buttons, which are widgets of the box.
    return qobject_cast<const QAction *>(receiver) != nullptr && QApplication::activeModalWidget() == nullptr;
}
