#include "window_input.h"

#include <QApplication>
#include <QPointer>
#include <QTest>
#include <QWidget>
#include <QWindow>

namespace WindowInput {
namespace {
struct Spot {
    QWindow *window;
    QPoint point;
};

Spot spotOf(const QWidget &widget, const QPoint &point) {
    return {widget.window()->windowHandle(), widget.mapTo(widget.window(), point)};
}

Spot middleOf(const QWidget &widget) { return spotOf(widget, widget.rect().center()); }

QWindow *keyWindow() {
    if (const QWidget *popup = QApplication::activePopupWidget())
        return popup->windowHandle();
    return QGuiApplication::focusWindow();
}

// The press may close the window.
void clickKey(Qt::Key key, Qt::KeyboardModifiers modifiers, char letter) {
    const QPointer<QWindow> window = keyWindow();
    const QString text = letter == 0 ? QString() : QString(QLatin1Char(letter));
    for (const QEvent::Type event : {QEvent::KeyPress, QEvent::KeyRelease}) {
        if (window != nullptr)
            qt_handleKeyEvent(window, event, key, modifiers, text);
        QCoreApplication::processEvents();
    }
}
} // namespace

void activate(QWidget &window) {
    window.show();
    QApplication::setActiveWindow(&window);
    QVERIFY(QTest::qWaitForWindowActive(&window));
}

void press(const QWidget &widget, Qt::MouseButton button) {
    const Spot spot = middleOf(widget);
    QTest::mousePress(spot.window, button, {}, spot.point);
}

void release(const QWidget &widget, Qt::MouseButton button) {
    const Spot spot = middleOf(widget);
    QTest::mouseRelease(spot.window, button, {}, spot.point);
}

void click(const QWidget &widget, Qt::MouseButton button) {
    press(widget, button);
    release(widget, button);
}

void doubleClick(const QWidget &widget) {
    const Spot spot = middleOf(widget);
    QTest::mouseDClick(spot.window, Qt::LeftButton, {}, spot.point);
}

void clickAt(const QWidget &widget, const QPoint &point) {
    const Spot spot = spotOf(widget, point);
    QTest::mouseClick(spot.window, Qt::LeftButton, {}, spot.point);
}

void moveTo(const QWidget &widget, const QPoint &point) {
    const Spot spot = spotOf(widget, point);
    QTest::mouseMove(spot.window, spot.point);
}

void key(Qt::Key key, Qt::KeyboardModifiers modifiers) { clickKey(key, modifiers, QTest::keyToAscii(key)); }

void type(const QString &text) {
    for (const QChar c : text)
        clickKey(QTest::asciiToKey(c.toLatin1()), Qt::NoModifier, c.toLatin1());
}
} // namespace WindowInput
