#include "grid_refresh_queue.h"

#include <QTimer>

#include <utility>

GridRefreshQueue::GridRefreshQueue(ComponentState &state) : mState(state) {
    mState.events.setIdleHandler([this] { schedule(); });
}

void GridRefreshQueue::add(const QString &guideUiid) {
    if (!mGuides.contains(guideUiid))
        mGuides.append(guideUiid);
    schedule();
}

void GridRefreshQueue::close() { mGuides.clear(); }

void GridRefreshQueue::schedule() {
    const bool held = mState.batchDepth > 0 || mState.events.isRaising();
    if (held || mScheduled || mGuides.isEmpty())
        return;
    mScheduled = true;
    QTimer::singleShot(0, this, &GridRefreshQueue::deliver);
}

void GridRefreshQueue::deliver() {
    mScheduled = false;
    if (mState.batchDepth > 0 || mState.events.isRaising())
        return; // scheduled again when the batch or the event ends
    const QStringList guides = std::exchange(mGuides, {});
    for (const QString &guide : guides)
        mState.events.raise(
            [&guide](TransformerEvents &listener) { listener.TransformerEvents_RefreshGridByUIID(guide); });
}
