#pragma once

#include "busy_flags.h"
#include "window_services.h"

#include <optional>

class GridSurface;

// The command that deletes the current record, or as many as rows are selected, without asking. Everything happens in
// one batch of the component. With several rows "DeleteRecord" is raised once for each, and each time it is the current
// record that is meant: the selection is a block and the cursor stands on its first row. The echo of the deletions to
// the form is off up to the last of them.
class GridDeletion {
  public:
    // All outlive this.
    GridDeletion(GridSurface &grid, const FieldServices &services, BusyFlags &busy);

    void cmdDelete_Click();

  private:
    void deleteRecords();
    // Raises the event once. False: refused.
    [[nodiscard]] bool deleteCurrent();
    void deleteSelected();
    void placeCursor(qint32 position);
    void close();

    GridSurface &mGrid;
    MessageBoxes &mBoxes;
    ErrorReport &mErrors;
    BusyFlags &mBusy;
    std::optional<qint32> mPosition; // the row that was deleted last
};
