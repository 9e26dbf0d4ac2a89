#pragma once

class LeavableField;
class QWidget;

// What a widget is to the leave sequence.

// The field that the widget is, or is a part of; also for a part of the field's open list. Null for none.
[[nodiscard]] LeavableField *fieldOf(QWidget *widget);
// What a press on the widget enters: a field, a button, a page tab, a view, or whatever takes the focus by a click.
// Null where a press enters nothing: a bare background, a caption, a disabled part, a scroll bar, a splitter, a menu, a
// tool bar.
[[nodiscard]] QWidget *enteredByPress(QWidget *pressed);
// Whether the widget or what holds it counts as surroundings: menus, tool bars, scroll bars, splitters, status bars.
[[nodiscard]] bool isSurroundings(const QWidget *widget);
