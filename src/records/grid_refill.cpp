#include "grid_refill.h"

#include "grid_surface.h"
#include "igrid.h"
#include "transformer.h"

void refillGrid(GridSurface &grid) {
    if (grid.Terminated())
        return;
    Igrid &rows = grid.Grid();
    const QString uiids = rows.Igrid_GetUIIDList();
    const bool dynamic = rows.Igrid_Dynamic();
    bool got = false;
    grid.Component().GetGridData(uiids, dynamic, rows.Igrid_GetArray(), 0, got);
    if (got && !grid.Terminated())
        rows.Igrid_Rebind(dynamic);
}
