#pragma once

#include <QPoint>
#include <QString>
#include <Qt>

class QWidget;

// Mouse and keys as the user's hands give them: to the window that shows the widget, before the focus has moved. An
// event sent to a widget would come too late for whatever acts before that. The window must be shown.
namespace WindowInput {
// Shows the widget's window and makes it the active one. Fails the test if that does not come about.
void activate(QWidget &window);

// At the widget's middle.
void press(const QWidget &widget, Qt::MouseButton button = Qt::LeftButton);
void release(const QWidget &widget, Qt::MouseButton button = Qt::LeftButton);
void click(const QWidget &widget, Qt::MouseButton button = Qt::LeftButton);
void doubleClick(const QWidget &widget);
// At a point of the widget, in its own pixels.
void clickAt(const QWidget &widget, const QPoint &point);
// With a button held or without one.
void moveTo(const QWidget &widget, const QPoint &point);

// To the window that now has the focus, an open list included.
void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
void type(const QString &text);
} // namespace WindowInput
