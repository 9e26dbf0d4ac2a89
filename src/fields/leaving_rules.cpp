#include "leaving_rules.h"

#include "leavable_field.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QMenu>
#include <QMenuBar>
#include <QScrollBar>
#include <QSizeGrip>
#include <QSplitterHandle>
#include <QStatusBar>
#include <QTabBar>
#include <QToolBar>

namespace {
template <class... Kinds>
bool isAnyOf(const QWidget &widget) {
    return ((qobject_cast<const Kinds *>(&widget) != nullptr) || ...);
}

bool isPopup(const QWidget &window) { return (window.windowFlags() & Qt::WindowType_Mask) == Qt::Popup; }

// Entered by a press even if the widget takes no focus by a click.
bool isAlwaysEntered(const QWidget &widget) {
    return isAnyOf<QAbstractButton, QTabBar, QAbstractItemView>(widget) || (widget.focusPolicy() & Qt::ClickFocus) != 0;
}
} // namespace

LeavableField *fieldOf(QWidget *widget) {
    for (; widget != nullptr; widget = widget->parentWidget()) {
        if (auto *field = dynamic_cast<LeavableField *>(widget))
            return field;
        if (widget->isWindow() && !isPopup(*widget))
            return nullptr;
    }
    return nullptr;
}

bool isSurroundings(const QWidget *widget) {
    for (; widget != nullptr; widget = widget->parentWidget()) {
        if (isAnyOf<QMenuBar, QMenu, QToolBar, QScrollBar, QSplitterHandle, QStatusBar, QSizeGrip>(*widget))
            return true;
        if (widget->isWindow())
            return false;
    }
    return false;
}

QWidget *enteredByPress(QWidget *pressed) {
    if (isSurroundings(pressed))
        return nullptr;
    if (const LeavableField *field = fieldOf(pressed))
        return field->TakesFocus() ? pressed : nullptr;
    for (QWidget *widget = pressed; widget != nullptr; widget = widget->parentWidget()) {
        if (isAlwaysEntered(*widget))
            return widget->isEnabled() ? widget : nullptr;
        if (widget->isWindow())
            return nullptr;
    }
    return nullptr;
}
