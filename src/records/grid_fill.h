#pragma once

#include "window_services.h"

#include <vector>

class GridSurface;

// Fills the value of the first selected row's cell in the current column down the selection. The component judges each
// value; the first refusal, which it tells itself, ends the filling, and what was filled before stays. All in one batch
// of the component; the rows are fetched anew afterwards and the selection stays.
class GridFill {
  public:
    // Both outlive this.
    GridFill(GridSurface &grid, const FieldServices &services);

    // Nothing happens with fewer than two selected rows, in a locked or disabled column, or while the current cell is
    // refused.
    void FillDown();

  private:
    [[nodiscard]] bool mayFill();
    void fill(const QString &uiid, const std::vector<qint32> &rows);

    GridSurface &mGrid;
    ErrorReport &mErrors;
};
