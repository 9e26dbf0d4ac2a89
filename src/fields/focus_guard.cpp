#include "focus_guard.h"

#include "common_error_handler.h"
#include "leavable_field.h"
#include "leaving_rules.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QTabBar>
#include <QTabWidget>
#include <QWindow>

#include <algorithm>

namespace {
LeavableField *asField(QWidget *widget) { return dynamic_cast<LeavableField *>(widget); }

QWidget *fieldWidgetOf(QWidget *widget) { return dynamic_cast<QWidget *>(fieldOf(widget)); }

QWidget *topLevelOf(const QWindow &window) {
    const QWidgetList windows = QApplication::topLevelWidgets();
    const auto found = std::find_if(windows.begin(), windows.end(),
                                    [&window](const QWidget *widget) { return widget->windowHandle() == &window; });
    return found == windows.end() ? nullptr : *found;
}

bool isNoLeaving(Qt::FocusReason reason) {
    return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason || reason == Qt::MenuBarFocusReason;
}

bool standsInTabWidget(const QWidget *widget) {
    for (; widget != nullptr; widget = widget->parentWidget()) {
        if (qobject_cast<const QTabWidget *>(widget) != nullptr)
            return true;
    }
    return false;
}

bool changesPage(const QKeyEvent &key) {
    if ((key.modifiers() & Qt::ControlModifier) == 0)
        return false;
    switch (key.key()) {
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        return true;
    default:
        return false;
    }
}

bool isPlainTab(const QKeyEvent &key) {
    return (key.key() == Qt::Key_Tab || key.key() == Qt::Key_Backtab) &&
           (key.modifiers() & ~Qt::ShiftModifier) == Qt::NoModifier;
}

// Disabled or hidden while it had the focus.
bool isGone(QWidget &field) { return !asField(&field)->TakesFocus(); }

// Where the focus goes by that press: the pressed part if a click focuses it, else the field's editing part.
void moveFocus(QWidget &entered, Qt::FocusReason reason) {
    QWidget *const fieldWidget = fieldWidgetOf(&entered);
    for (QWidget *widget = &entered; widget != nullptr; widget = widget->parentWidget()) {
        if ((widget->focusPolicy() & Qt::ClickFocus) != 0 && widget->isEnabled())
            return widget->setFocus(reason);
        if (widget == fieldWidget || widget->isWindow() || fieldWidget == nullptr)
            break;
    }
    if (fieldWidget != nullptr)
        asField(fieldWidget)->FocusEditingPart();
    else if (entered.focusPolicy() != Qt::NoFocus)
        entered.setFocus(reason);
}
} // namespace

FocusGuard::FocusGuard(ErrorReport &errors) : mErrors(errors) {
    QCoreApplication::instance()->installEventFilter(this);
}

void FocusGuard::countAsEntered(QWidget &surroundings) { mCounted.emplace_back(&surroundings); }

bool FocusGuard::eventFilter(QObject *watched, QEvent *event) try { return guard(*watched, *event); }
ERROR_TAIL(false)

bool FocusGuard::guard(QObject &watched, QEvent &event) {
    switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
        return watched.isWindowType() &&
               mouseOnWindow(static_cast<QWindow &>(watched), static_cast<QMouseEvent &>(event));
    case QEvent::KeyPress:
        return &watched == QApplication::focusWidget() &&
               keyRefused(static_cast<QWidget &>(watched), static_cast<QKeyEvent &>(event));
    case QEvent::Shortcut:
        return watched.isWidgetType() && accessKeyRefused(static_cast<QWidget &>(watched));
    case QEvent::FocusOut:
        if (watched.isWidgetType())
            focusLeaves(static_cast<QWidget &>(watched), static_cast<QFocusEvent &>(event));
        return false;
    case QEvent::FocusIn:
        if (watched.isWidgetType())
            focusComes(static_cast<QWidget &>(watched), static_cast<QFocusEvent &>(event));
        return false;
    default:
        return false;
    }
}

bool FocusGuard::mouseOnWindow(const QWindow &window, const QMouseEvent &event) {
    if (mAsking)
        return false;
    if (event.type() == QEvent::MouseButtonPress) {
        mEating = pressRefused(window, event);
        return mEating;
    }
    const bool eaten = mEating;
    if (event.type() == QEvent::MouseButtonRelease)
        mEating = false;
    return eaten;
}

bool FocusGuard::pressRefused(const QWindow &window, const QMouseEvent &event) {
    if (QApplication::activePopupWidget() != nullptr)
        return false;
    QWidget *top = topLevelOf(window);
    const QWidget *modal = QApplication::activeModalWidget();
    if (top == nullptr || (modal != nullptr && modal != top))
        return false;
    QWidget *pressed = top->childAt(event.position().toPoint());
    return pressed != nullptr && !enter(*pressed, Qt::MouseFocusReason);
}

bool FocusGuard::keyRefused(QWidget &receiver, const QKeyEvent &key) {
    QWidget *field = mEntered.in(EnteredFields::windowOf(&receiver));
    if (field == nullptr || mAsking || QApplication::activePopupWidget() != nullptr)
        return false;
    mPassed = nullptr;
    const bool leaves =
        (isPlainTab(key) && asField(field)->TabLeaves(key)) || (changesPage(key) && standsInTabWidget(&receiver));
    return leaves && !mayLeave(field);
}

bool FocusGuard::accessKeyRefused(QWidget &receiver) {
    if (mAsking || mEntered.in(EnteredFields::windowOf(&receiver)) == nullptr)
        return false;
    if (const auto *label = qobject_cast<QLabel *>(&receiver))
        return label->buddy() != nullptr && !enter(*label->buddy(), Qt::ShortcutFocusReason);
    const bool enters =
        qobject_cast<QAbstractButton *>(&receiver) != nullptr || qobject_cast<QTabBar *>(&receiver) != nullptr;
    return enters && !enter(receiver, Qt::ShortcutFocusReason);
}

QWidget *FocusGuard::enteredBy(QWidget &pressed) const {
    const bool counted = std::any_of(mCounted.begin(), mCounted.end(), [&pressed](const QPointer<QWidget> &widget) {
        return !widget.isNull() && (widget == &pressed || widget->isAncestorOf(&pressed));
    });
    return counted ? &pressed : enteredByPress(&pressed);
}

bool FocusGuard::enter(QWidget &pressed, Qt::FocusReason reason) {
    mPassed = nullptr;
    const QPointer<QWidget> entered = enteredBy(pressed);
    if (entered.isNull())
        return true;
    QWidget *current = mEntered.in(EnteredFields::windowOf(&pressed));
    QWidget *next = fieldWidgetOf(entered);
    if (next == current && next != nullptr)
        return true;
    if (!mayLeave(current) || entered.isNull())
        return false;
    if (current != nullptr || next != nullptr)
        moveFocus(*entered, reason);
    return true;
}

bool FocusGuard::mayLeave(QWidget *field) {
    if (field == nullptr || mAsking || mPassed == field || isGone(*field))
        return true;
    const QPointer<QWidget> asked(field);
    {
        const QScopedValueRollback<bool> asking(mAsking, true);
        if (!asField(field)->MayLeave())
            return false;
    }
    mPassed = asked;
    QMetaObject::invokeMethod(this, &FocusGuard::forgetPassed, Qt::QueuedConnection);
    return true;
}

void FocusGuard::focusLeaves(QWidget &widget, const QFocusEvent &event) {
    if (isNoLeaving(event.reason()))
        return;
    QWidget *window = EnteredFields::windowOf(&widget);
    QWidget *left = fieldWidgetOf(&widget);
    if (left == nullptr || left != mEntered.in(window) || fieldWidgetOf(QApplication::focusWidget()) == left)
        return;
    if (isSurroundings(QApplication::focusWidget()))
        return;
    leaveBehind(*window, *left);
}

void FocusGuard::focusComes(QWidget &widget, const QFocusEvent &event) {
    QWidget *window = EnteredFields::windowOf(&widget);
    if (event.reason() == Qt::MenuBarFocusReason || isSurroundings(&widget) || widget.window() != window)
        return;
    QWidget *before = mEntered.in(window);
    const QPointer<QWidget> next = fieldWidgetOf(&widget);
    if (next == before)
        return;
    const bool returning = !mReturning.isNull() && mReturning->window() == window;
    // The focus may have been moved while the window was not active.
    if (returning || (before != nullptr && !leaveBehind(*window, *before)))
        return;
    if (next.isNull())
        return;
    mEntered.set(window, next);
    asField(next)->FocusHasCome();
}

bool FocusGuard::leaveBehind(QWidget &window, QWidget &field) {
    if (mayLeave(&field)) {
        finishLeaving(window, field);
        return true;
    }
    mReturning = &field;
    QMetaObject::invokeMethod(this, &FocusGuard::bringBack, Qt::QueuedConnection);
    return false;
}

void FocusGuard::finishLeaving(QWidget &window, QWidget &field) {
    mPassed = nullptr;
    mEntered.set(&window, nullptr);
    asField(&field)->FocusHasLeft();
}

void FocusGuard::bringBack() try {
    QWidget *field = mReturning.data();
    if (field != nullptr)
        asField(field)->FocusEditingPart();
    mReturning = nullptr;
}
ERROR_TAIL()
