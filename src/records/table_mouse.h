#pragma once

class QMouseEvent;
class TDBGrid;

// What the mouse does in the cells of a table: a press moves the cursor, ticks a check cell or opens the list by the
// button of the current cell; a double click edits, ticks or lists. Cells are not selected by a drag.
class TableMouse {
  public:
    // The table outlives this.
    explicit TableMouse(TDBGrid &table) : mTable(table) {}

    void press(const QMouseEvent &event);
    void doubleClick(const QMouseEvent &event);

  private:
    TDBGrid &mTable;
};
