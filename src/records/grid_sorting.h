#pragma once

#include "window_services.h"

class GridSurface;

// Sorting by a column, which the component does, and the test that some grids make before a record is added.
class GridSorting {
  public:
    // Both outlive this.
    GridSorting(GridSurface &grid, const FieldServices &services);

    // A click on a column's head. Nothing happens unless the grid is sortable, or while the current cell is refused.
    void TDBGrid1_HeadClick(qint32 column);
    // True with fewer than two rows and where no cell of column 0 is below the one before it, read as integers. A cell
    // that is no number counts as 0.
    [[nodiscard]] bool FirstColumnIsSorted() const;
    // True for a grid that requires its first column sorted when it is not. The user is then asked with this text, and
    // on Yes the first column is sorted; whatever was about to be done is not to be done.
    [[nodiscard]] bool AsksToSort(const char *prompt, const char *title);
    // The focus has left the control: sorts without asking where the design requires it.
    void UserControl_ExitFocus();

  private:
    [[nodiscard]] bool mustBeSorted() const;

    GridSurface &mGrid;
    MessageBoxes &mBoxes;
    ErrorReport &mErrors;
};
