#pragma once

#include <QString>

class GridSurface;

// Puts a text that was pasted or dropped into the current cell. It reaches the component when the cell is left.
class GridCellWriter {
  public:
    explicit GridCellWriter(GridSurface &grid) : mGrid(grid) {}

    // Nothing happens in a locked or disabled column, and nothing for a text that is not in the list of a list column.
    void SetCellValue(const QString &text);
    // False for a locked or disabled column, and where there is no column.
    [[nodiscard]] static bool takesText(const GridSurface &grid, qint32 column);

  private:
    void chooseItem(qint32 column, const QString &text);
    void writeItem(qint32 column, const QString &text);

    GridSurface &mGrid;
};
