#pragma once

#include "busy_flags.h"
#include "grid_buttons.h"
#include "grid_cell_drag.h"
#include "grid_clipboard.h"
#include "grid_commands.h"
#include "grid_deletion.h"
#include "grid_fill.h"
#include "grid_keys.h"
#include "grid_menu.h"
#include "grid_record_drag.h"
#include "grid_sorting.h"

// Everything that the user does with the records of one grid, ready wired: the front makes one of these when its table
// stands and hands its own operations on to the parts.
struct GridOperations {
    // The grid outlives this.
    GridOperations(GridSurface &surface, const FieldServices &services);
    GridOperations(const GridOperations &) = delete;
    GridOperations &operator=(const GridOperations &) = delete;

    BusyFlags busy;
    GridSorting sorting;
    GridCommands commands;
    GridDeletion deletion;
    GridClipboard clipboard;
    GridFill fill;
    GridMenu menu;
    GridKeys keys;
    GridCellDrag cellDrag;
    GridRecordDrag recordDrag;
    GridButtons buttons;
};
