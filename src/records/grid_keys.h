#pragma once

#include "grid_surface.h"
#include "next_tab_stop.h"
#include "window_services.h"

#include <Qt>

class GridClipboard;
class GridFill;
class GridMenu;
class QKeyEvent;

// The keys of a grid, before its table and cell editor act on them, and what happens when the focus comes. The grid is
// one stop in the tab order: its first and last cell lead out, inside Tab goes from cell to cell.
class GridKeys {
  public:
    // All outlive this.
    GridKeys(GridSurface &grid, const FieldServices &services, GridClipboard &clipboard, GridFill &fill,
             GridMenu &menu);

    // True: the key is swallowed.
    bool TDBGrid1_KeyDown(const QKeyEvent &key);
    // Whether this Tab or Shift+Tab leads out of the grid.
    [[nodiscard]] bool TabLeaves(const QKeyEvent &key) const;
    // Tab comes to the first cell, Shift+Tab to the last one; another reason leaves the cursor where it is.
    void TDBGrid1_GotFocus(Qt::FocusReason reason);

  private:
    struct Command;
    static const Command kCommands[];

    bool runCommand(const QKeyEvent &key);
    void tab(TabDirection direction);
    // The cell that Tab goes to; none where it leads out.
    [[nodiscard]] std::optional<GridCell> nextCell(TabDirection direction) const;
    void leave(TabDirection direction);
    [[nodiscard]] HostControl *neighbour(TabDirection direction) const;
    [[nodiscard]] qint32 firstColumn() const;
    // Whether the current cell cannot be written into.
    [[nodiscard]] bool swallowsTyping() const;
    bool escape();

    void fillDown();
    void showMenu();
    void showHelp();
    void moveFirst();
    void moveLast();
    void copy();
    void paste();

    GridSurface &mGrid;
    FormShell &mShell;
    ErrorReport &mErrors;
    GridClipboard &mClipboard;
    GridFill &mFill;
    GridMenu &mMenu;
};
