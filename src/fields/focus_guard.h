#pragma once

#include "entered_fields.h"

#include <QObject>
#include <QPointer>

#include <vector>

class ErrorReport;
class LeavableField;
class QFocusEvent;
class QKeyEvent;
class QMouseEvent;
class QShortcutEvent;
class QWindow;

// Runs the leave sequence of a field before the focus moves away, for the whole application: one object, made by it.
//
// A mouse press is caught while its receiver is still the window, Tab and the keys that change pages at key press,
// access keys of buttons, labels and pages as they arrive. A refused value eats the press with its release and double
// click, or the key: the focus never moves, and the target hears nothing. A press on any part of another field brings
// the focus to that field.
//
// Focus that code moves cannot be stopped: the sequence then runs as it leaves, and a refusal brings it back with the
// next events. Menus, popups and other windows are no leaving; a field that was disabled or hidden is left without
// being asked.
class FocusGuard final : public QObject {
    Q_OBJECT
  public:
    explicit FocusGuard(ErrorReport &errors);

    // Presses on the widget and its parts count as entering, though tool bars otherwise do not.
    void countAsEntered(QWidget &surroundings);

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    [[nodiscard]] bool guard(QObject &watched, QEvent &event);
    bool mouseOnWindow(const QWindow &window, const QMouseEvent &event);
    [[nodiscard]] bool pressRefused(const QWindow &window, const QMouseEvent &event);
    [[nodiscard]] bool keyRefused(QWidget &receiver, const QKeyEvent &key);
    [[nodiscard]] bool accessKeyRefused(QWidget &receiver);
    void focusLeaves(QWidget &widget, const QFocusEvent &event);
    void focusComes(QWidget &widget, const QFocusEvent &event);

    [[nodiscard]] QWidget *enteredBy(QWidget &pressed) const;
    // False: refused, or the target is no longer there.
    [[nodiscard]] bool enter(QWidget &pressed, Qt::FocusReason reason);
    // Asks the window's field, unless it may be left anyway.
    [[nodiscard]] bool mayLeave(QWidget *field);
    // The field has been left by code: done with, or brought back. False: brought back.
    bool leaveBehind(QWidget &window, QWidget &field);
    void finishLeaving(QWidget &window, QWidget &field);
    void bringBack();
    void forgetPassed() { mPassed = nullptr; }

    ErrorReport &mErrors;
    EnteredFields mEntered;
    std::vector<QPointer<QWidget>> mCounted;
    QPointer<QWidget> mPassed;    // may be left by the event that is under way
    QPointer<QWidget> mReturning; // refused, and waits to get the focus back
    bool mAsking = false;         // a leave sequence runs
    bool mEating = false;         // the rest of a refused press is still to come
};
