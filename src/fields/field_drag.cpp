#include "field_drag.h"

#include "common_error_handler.h"
#include "twips.h"

#include <QDrag>
#include <QDropEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPointer>
#include <QWidget>

#include <algorithm>
#include <cstdlib>
#include <memory>

namespace {
constexpr Twips kThreshold{180};

bool isFartherThan(const QPoint &way, int threshold) {
    return std::max(std::abs(way.x()), std::abs(way.y())) > threshold;
}
} // namespace

FieldDrag::FieldDrag(DragParty &party, const FieldServices &services, Qt::MouseButtons buttons)
    : mParty(party), mShell(services.shell), mErrors(services.errors), mButtons(buttons) {}

void FieldDrag::addSource(QWidget &widget) {
    mSources.append(&widget);
    widget.installEventFilter(this);
}

void FieldDrag::addTarget(QWidget &widget) {
    mTargets.append(&widget);
    widget.setAcceptDrops(true);
    widget.installEventFilter(this);
}

bool FieldDrag::eventFilter(QObject *watched, QEvent *event) try {
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
        return mSources.contains(watched) &&
               sourceEvent(static_cast<QWidget &>(*watched), static_cast<QMouseEvent &>(*event));
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
        return mTargets.contains(watched) && targetEvent(*event);
    default:
        return false;
    }
}
ERROR_TAIL(false)

bool FieldDrag::sourceEvent(QWidget &source, QMouseEvent &event) {
    if (event.type() == QEvent::MouseMove) {
        const int threshold = TwipScale::of(source).toPixels(kThreshold).count;
        if (!mArmed || !isFartherThan(event.position().toPoint() - mPressedAt, threshold))
            return false;
        mArmed = false;
        if ((event.buttons() & mButtons) == 0 || !mParty.MayDrag())
            return false;
        start(source);
        return true;
    }
    if ((event.button() & mButtons) == 0)
        return false;
    mArmed = event.type() == QEvent::MouseButtonPress;
    mPressedAt = event.position().toPoint();
    return false;
}

bool FieldDrag::targetEvent(QEvent &event) {
    auto &drop = static_cast<QDropEvent &>(event);
    const QMimeData *data = drop.mimeData();
    const bool accepted = data->hasText() && mParty.AcceptsDrag(data->text());
    drop.setAccepted(accepted);
    if (!accepted)
        return true;
    drop.setDropAction(Qt::CopyAction);
    if (event.type() == QEvent::Drop)
        mParty.TakeDrop(data->text());
    return true;
}

void FieldDrag::start(QWidget &source) {
    auto data = std::make_unique<QMimeData>();
    data->setText(mParty.DragText());
    mShell.StartDrag(mParty.DragId(), mParty.DragTypeName());
    auto *drag = new QDrag(&source); // deletes itself when the drag has ended
    drag->setMimeData(data.release());
    // The form may be closed before the drag ends.
    const QPointer<FieldDrag> self(this);
    FormShell &shell = mShell;
    drag->exec(Qt::CopyAction, Qt::CopyAction);
    if (self.isNull())
        shell.FinishedDrag();
    else
        self->finish();
}

void FieldDrag::finish() {
    mShell.FinishedDrag();
    mParty.DragFinished();
}
