#include "grid_commands.h"

#include "common_error_handler.h"
#include "grid_sorting.h"
#include "grid_surface.h"
#include "invalid_uiid.h"

struct GridCommands::Command {
    qint16 flag;
    const char *event;
    const char *sortPrompt;
    const char *sortTitle;
    const char *invalidUIID;
};

constexpr GridCommands::Command GridCommands::kAdd{
    BusyFlags::kAdd, "AddRecord",
    "The data must be sorted by the first column before you can add a record.  Do you want to sort the data now?",
    "Error Adding Record", "The add request failed due to an invalid UIID."};
constexpr GridCommands::Command GridCommands::kInsert{
    BusyFlags::kInsert, "InsertRecord",
    "The data must be sorted by the first column before you can insert a record.  Do you want to sort the data now?",
    "Error Inserting Record", "The insert request failed due to an invalid UIID"};
constexpr GridCommands::Command GridCommands::kRepeat{
    BusyFlags::kRepeat, "RepeatRecord",
    "The data must be sorted by the first column before you can repeat a record.  Do you want to sort the data now?",
    "Error Repeating Record", "The repeat request failed due to an invalid UIID"};

GridCommands::GridCommands(GridSurface &grid, const FieldServices &services, GridSorting &sorting, BusyFlags &busy)
    : mGrid(grid), mBoxes(services.boxes), mErrors(services.errors), mSorting(sorting), mBusy(busy) {}

bool GridCommands::open(const Command &command) {
    mGrid.ShowHourglass();
    mGrid.SetButtonEnabledState(false);
    if (mSorting.AsksToSort(command.sortPrompt, command.sortTitle)) {
        mGrid.SetButtonEnabledState(true);
        mGrid.ShowPointer();
        return false;
    }
    if (!mBusy.idle())
        return false;
    mBusy.begin(command.flag);
    return true;
}

void GridCommands::close(const Command &command) {
    mBusy.end(command.flag);
    mGrid.SetButtonEnabledState(true);
    mGrid.ShowPointer();
}

void GridCommands::fail(const Command &command, const char *procedure) {
    if (!toldAsInvalidUIID(command.invalidUIID, mBoxes, mErrors, procedure))
        return;
    if (!mGrid.Terminated())
        dropBlankRow();
    close(command);
}

void GridCommands::cmdAdd_Click() try {
    if (!open(kAdd))
        return;
    mGrid.Raise(FieldEvent(QString::fromLatin1(kAdd.event)));
    if (!mGrid.Terminated())
        showAddedRow();
    close(kAdd);
} catch (...) {
    fail(kAdd, __func__);
}

void GridCommands::showAddedRow() {
    GridTable &table = mGrid.Table();
    if (table.Bookmark()) {
        const qint32 last = mGrid.DisplayArray().UpperBound(1);
        table.SetBookmark(last);
        mGrid.Raise(FieldEvent(QStringLiteral("RowSelectionChanged"), in(last)));
        if (mGrid.Terminated())
            return;
    }
    table.SetFocus();
    if (table.Bookmark())
        table.SetRow(table.VisibleRows() - 1);
    table.RemoveSelBookmarks();
    if (const auto current = table.Bookmark())
        table.AddSelBookmark(*current);
}

void GridCommands::cmdInsert_Click() try {
    if (!open(kInsert))
        return;
    const auto current = mGrid.Table().Bookmark();
    if (current && mGrid.DisplayArray().UpperBound(1) >= 0)
        makeRecord(kInsert, *current);
    endInsertion(kInsert);
} catch (...) {
    fail(kInsert, __func__);
}

void GridCommands::cmdRepeat_Click() try {
    mGrid.Table().Update();
    if (mGrid.Terminated() || !open(kRepeat))
        return;
    const auto current = mGrid.Table().Bookmark();
    if (current && mGrid.DisplayArray().UpperBound(1) >= 0) {
        const qint32 position = *current + 1;
        if (mGrid.Translated())
            mGrid.SourceArray().InsertRow(position);
        makeRecord(kRepeat, position);
    }
    endInsertion(kRepeat);
} catch (...) {
    fail(kRepeat, __func__);
}

void GridCommands::makeRecord(const Command &command, qint32 position) {
    mGrid.Table().Update(); // what was being typed must not reach the record that takes this row
    if (mGrid.Terminated())
        return;
    XArrayDB &rows = mGrid.DisplayArray();
    rows.InsertRow(position);
    mBlank = Blank{position, rows.UpperBound(1)};
    mGrid.Table().ReBind();
    mGrid.ClearRowInserted();
    mGrid.Raise(FieldEvent(QString::fromLatin1(command.event)));
    if (mGrid.Terminated())
        return;
    if (mGrid.RowInserted()) {
        mBlank.reset();
        mGrid.Table().SetBookmark(position);
        mGrid.Table().SetFocus();
    }
    dropBlankRow();
    mGrid.Table().ReBind();
}

// Only while the array is still the one that the row was made in: a refill meanwhile has taken the row away.
void GridCommands::dropBlankRow() {
    if (!mBlank)
        return;
    XArrayDB &rows = mGrid.DisplayArray();
    if (rows.UpperBound(1) == mBlank->lastRow)
        rows.DeleteRow(mBlank->row);
    mBlank.reset();
}

void GridCommands::endInsertion(const Command &command) {
    mBlank.reset();
    if (!mGrid.Terminated()) {
        GridTable &table = mGrid.Table();
        if (const auto current = table.Bookmark())
            table.AddSelBookmark(*current);
    }
    close(command);
}
