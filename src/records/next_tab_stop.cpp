#include "next_tab_stop.h"

#include "field_host.h"

#include <QApplication>
#include <QFocusEvent>
#include <QWidget>

namespace {
constexpr qint32 kAboveAll = 9999999;
constexpr qint32 kBelowAll = -1;

bool takesFocus(const HostControl &control) { return control.Enabled() && control.Visible() && control.TabStop(); }

QWidget *follower(QWidget &widget, TabDirection direction) {
    return direction == TabDirection::kForward ? widget.nextInFocusChain() : widget.previousInFocusChain();
}

Qt::FocusReason reasonOf(TabDirection direction) {
    return direction == TabDirection::kForward ? Qt::TabFocusReason : Qt::BacktabFocusReason;
}

bool isReachedByTab(const QWidget &widget, const QWidget &from) {
    return (widget.focusPolicy() & Qt::TabFocus) != 0 && widget.isEnabled() && widget.isVisible() &&
           widget.window() == from.window() && &widget != &from && !from.isAncestorOf(&widget);
}
} // namespace

HostControl *NextTabStop(const HostControls &controls, qint32 tabIndex, TabDirection direction) {
    HostControl *found = nullptr;
    qint32 bound = direction == TabDirection::kForward ? kAboveAll : kBelowAll;
    for (HostControl *control : controls) {
        const qint32 index = control->TabIndex();
        const bool nearer =
            direction == TabDirection::kForward ? index > tabIndex && index < bound : index < tabIndex && index > bound;
        if (!nearer || !takesFocus(*control))
            continue;
        found = control;
        bound = index;
    }
    return found;
}

void focusByTab(HostControl &control, TabDirection direction) {
    const auto *host = dynamic_cast<const FieldHost *>(&control);
    QWidget *part = host == nullptr || host->Widget() == nullptr ? nullptr : host->Widget()->focusProxy();
    if (part != nullptr) {
        part->setFocus(reasonOf(direction));
        return;
    }
    const QWidget *before = QApplication::focusWidget();
    control.SetFocus();
    QWidget *now = QApplication::focusWidget();
    if (now == nullptr || now == before)
        return;
    QFocusEvent arrival(QEvent::FocusIn, reasonOf(direction));
    QCoreApplication::sendEvent(now, &arrival);
}

void focusBeyond(QWidget &widget, TabDirection direction) {
    for (QWidget *next = follower(widget, direction); next != nullptr && next != &widget;
         next = follower(*next, direction)) {
        if (!isReachedByTab(*next, widget))
            continue;
        next->setFocus(reasonOf(direction));
        return;
    }
}
