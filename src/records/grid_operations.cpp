#include "grid_operations.h"

GridOperations::GridOperations(GridSurface &surface, const FieldServices &services)
    : sorting(surface, services), commands(surface, services, sorting, busy), deletion(surface, services, busy),
      clipboard(surface, services), fill(surface, services), menu(surface, services, clipboard),
      keys(surface, services, clipboard, fill, menu), cellDrag(surface, services), recordDrag(surface, services),
      buttons(surface, {[this] { commands.cmdAdd_Click(); }, [this] { commands.cmdInsert_Click(); },
                        [this] { commands.cmdRepeat_Click(); }, [this] { deletion.cmdDelete_Click(); }}) {}
