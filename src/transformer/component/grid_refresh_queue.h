#pragma once

#include "component_state.h"

#include <QObject>
#include <QStringList>

// The one event that is not raised from inside a call: after a record operation the grids of its structure are filled
// anew when the running command has ended. While a batch is open, or an event has not returned, it stays queued.
class GridRefreshQueue : public QObject {
    Q_OBJECT

  public:
    explicit GridRefreshQueue(ComponentState &state);

    // The guide of the structure whose grids are to be filled; each is raised once.
    void add(const QString &guideUiid);
    // To be called when a batch has ended.
    void schedule();
    // Nothing is raised any more.
    void close();

  private:
    void deliver();

    ComponentState &mState;
    QStringList mGuides;
    bool mScheduled = false;
};
