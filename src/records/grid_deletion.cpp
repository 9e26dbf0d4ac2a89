#include "grid_deletion.h"

#include "common_error_handler.h"
#include "grid_refill.h"
#include "grid_surface.h"
#include "invalid_uiid.h"
#include "transformer.h"

#include <algorithm>
#include <functional>

GridDeletion::GridDeletion(GridSurface &grid, const FieldServices &services, BusyFlags &busy)
    : mGrid(grid), mBoxes(services.boxes), mErrors(services.errors), mBusy(busy) {}

void GridDeletion::cmdDelete_Click() try {
    mGrid.Component().BeginBatchUpdate();
    mGrid.SetButtonEnabledState(false);
    if (mBusy.idle()) {
        mBusy.begin(BusyFlags::kDelete);
        deleteRecords();
    }
    close();
} catch (...) {
    if (toldAsInvalidUIID("The delete request failed due to an invalid UIID", mBoxes, mErrors, __func__)) {
        mGrid.Component().SetProviderUpdateUIOnFieldChange(true);
        close();
    }
}

void GridDeletion::close() {
    mBusy.end(BusyFlags::kDelete);
    mGrid.SetButtonEnabledState(true);
    mGrid.Component().EndBatchUpdate();
}

void GridDeletion::deleteRecords() {
    if (mGrid.DisplayArray().UpperBound(1) < 0)
        return;
    mGrid.Table().Update(); // what was being typed must not reach the record that takes this row
    if (mGrid.Terminated())
        return;
    mPosition = mGrid.Table().Bookmark();
    if (mGrid.Table().SelBookmarks().size() > 1)
        deleteSelected();
    else if (mPosition)
        static_cast<void>(deleteCurrent());
    if (mPosition && !mGrid.Terminated())
        placeCursor(*mPosition);
}

bool GridDeletion::deleteCurrent() {
    bool deleted = false;
    mGrid.Raise(FieldEvent(QStringLiteral("DeleteRecord"), out(deleted)));
    return deleted;
}

void GridDeletion::deleteSelected() {
    Transformer &component = mGrid.Component();
    component.SetProviderUpdateUIOnFieldChange(false);
    auto positions = mGrid.Table().SelBookmarks();
    std::ranges::sort(positions, std::greater());
    std::size_t deleted = 0;
    for (const qint32 position : positions) {
        mPosition = position;
        if (!deleteCurrent() || mGrid.Terminated())
            continue;
        if (++deleted == positions.size() - 1)
            component.SetProviderUpdateUIOnFieldChange(true);
    }
    component.SetProviderUpdateUIOnFieldChange(true);
    refillGrid(mGrid);
}

void GridDeletion::placeCursor(qint32 position) {
    GridTable &table = mGrid.Table();
    const qint32 last = mGrid.DisplayArray().UpperBound(1);
    if (last < 0)
        return;
    const bool fellToFirst = position != 0 && table.Bookmark().value_or(0) == 0;
    table.SetBookmark(position > last || fellToFirst ? last : position);
    table.SetFocus();
}
