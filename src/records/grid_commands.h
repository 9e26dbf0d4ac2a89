#pragma once

#include "busy_flags.h"
#include "window_services.h"

#include <optional>

class GridSorting;
class GridSurface;

// The commands that make a record: add at the end, insert before the current one, repeat (a copy below the current
// one). A command never changes a record itself. It prepares the rows on show and raises an event; the enabler asks the
// component and hands the new row back through Igrid_AppendRow or Igrid_InsertRow. What was prepared is undone when the
// component refuses.
//
// While a command runs the buttons are disabled and the pointer over the grid is the hourglass. A command that comes in
// meanwhile does nothing. An error 91 of a command is told and ends that command alone.
class GridCommands {
  public:
    // All outlive this.
    GridCommands(GridSurface &grid, const FieldServices &services, GridSorting &sorting, BusyFlags &busy);

    void cmdAdd_Click();
    void cmdInsert_Click();
    void cmdRepeat_Click();

  private:
    struct Command;

    // False: the command is not to be carried out.
    [[nodiscard]] bool open(const Command &command);
    void close(const Command &command);
    void showAddedRow();
    // The rows on show get a blank one at position; it is filled by the enabler or vanishes again.
    void makeRecord(const Command &command, qint32 position);
    void dropBlankRow();
    void endInsertion(const Command &command);
    // To be called in a catch block.
    void fail(const Command &command, const char *procedure);

    GridSurface &mGrid;
    MessageBoxes &mBoxes;
    ErrorReport &mErrors;
    GridSorting &mSorting;
    BusyFlags &mBusy;

    // The row that was made for a record that is not there yet, and the last row that the array then had.
    struct Blank {
        qint32 row;
        qint32 lastRow;
    };
    std::optional<Blank> mBlank;

    static const Command kAdd;
    static const Command kInsert;
    static const Command kRepeat;
};
