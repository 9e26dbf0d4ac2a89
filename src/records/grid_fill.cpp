#include "grid_fill.h"

#include "common_error_handler.h"
#include "grid_cell_writer.h"
#include "grid_refill.h"
#include "grid_surface.h"
#include "transformer.h"

GridFill::GridFill(GridSurface &grid, const FieldServices &services) : mGrid(grid), mErrors(services.errors) {}

bool GridFill::mayFill() {
    if (!mGrid.Design().Dynamic || !GridCellWriter::takesText(mGrid, mGrid.Table().Col()))
        return false;
    bool cancel = false;
    mGrid.Validate(cancel);
    return !cancel && !mGrid.Terminated();
}

void GridFill::FillDown() try {
    const std::vector<qint32> rows = mGrid.Table().SelBookmarks();
    if (rows.size() < 2 || !mayFill())
        return;
    Transformer &component = mGrid.Component();
    component.BeginBatchUpdate();
    component.SetProviderUpdateUIOnFieldChange(false);
    fill(mGrid.ColumnAt(mGrid.Table().Col()).uiid, rows);
    component.SetProviderUpdateUIOnFieldChange(true);
    refillGrid(mGrid);
    component.EndBatchUpdate();
    if (mGrid.Terminated())
        return;
    for (const qint32 row : rows)
        mGrid.Table().AddSelBookmark(row);
}
ERROR_TAIL()

void GridFill::fill(const QString &uiid, const std::vector<qint32> &rows) {
    Transformer &component = mGrid.Component();
    const QVariant value = component.GetValue(uiid, rows.front() + 1);
    bool accepted = true;
    for (std::size_t index = 1; index < rows.size() && accepted; ++index)
        component.SetValue(uiid, value, rows.at(index) + 1, true, accepted);
}
