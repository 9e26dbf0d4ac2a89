#include "grid_keys.h"

#include "common_error_handler.h"
#include "grid_cell_writer.h"
#include "grid_clipboard.h"
#include "grid_fill.h"
#include "grid_menu.h"
#include "grid_surface.h"

#include <QKeyEvent>
#include <QWidget>

#include <algorithm>

struct GridKeys::Command {
    int key;
    Qt::KeyboardModifiers modifiers;
    void (GridKeys::*run)();
    bool whileEditing = true; // false: the cell editor has a use for the key itself
};

// Copy and paste come by the menu of the window; their keys arrive here only where it has not taken them.
const GridKeys::Command GridKeys::kCommands[] = {
    {Qt::Key_F1, Qt::ShiftModifier, &GridKeys::showHelp},      {Qt::Key_Menu, Qt::NoModifier, &GridKeys::showMenu},
    {Qt::Key_V, Qt::ControlModifier, &GridKeys::paste},        {Qt::Key_C, Qt::ControlModifier, &GridKeys::copy, false},
    {Qt::Key_Home, Qt::ControlModifier, &GridKeys::moveFirst}, {Qt::Key_End, Qt::ControlModifier, &GridKeys::moveLast},
    {Qt::Key_D, Qt::ControlModifier, &GridKeys::fillDown},
};

namespace {
bool isTab(const QKeyEvent &key) {
    return (key.key() == Qt::Key_Tab || key.key() == Qt::Key_Backtab) &&
           (key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) == 0;
}

TabDirection directionOf(const QKeyEvent &key) {
    const bool backward = key.key() == Qt::Key_Backtab || (key.modifiers() & Qt::ShiftModifier) != 0;
    return backward ? TabDirection::kBackward : TabDirection::kForward;
}

// Keys that write into a cell; the others move, or are commands of the window.
bool writes(const QKeyEvent &key) {
    if ((key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0)
        return false;
    return key.key() == Qt::Key_Backspace || key.key() == Qt::Key_Delete ||
           (!key.text().isEmpty() && key.text().front().isPrint());
}
} // namespace

GridKeys::GridKeys(GridSurface &grid, const FieldServices &services, GridClipboard &clipboard, GridFill &fill,
                   GridMenu &menu)
    : mGrid(grid), mShell(services.shell), mErrors(services.errors), mClipboard(clipboard), mFill(fill), mMenu(menu) {}

bool GridKeys::TDBGrid1_KeyDown(const QKeyEvent &key) try {
    if (mShell.ChangingForms())
        return true;
    if (isTab(key)) {
        tab(directionOf(key));
        return true;
    }
    if (runCommand(key))
        return true;
    if (!mGrid.Table().Bookmark())
        return false;
    if (key.key() == Qt::Key_Escape)
        return escape();
    return writes(key) && swallowsTyping();
}
ERROR_TAIL(false)

bool GridKeys::runCommand(const QKeyEvent &key) {
    const auto modifiers = key.modifiers() & ~Qt::KeypadModifier;
    const bool editing = mGrid.Table().EditActive();
    const auto *const found = std::ranges::find_if(kCommands, [&](const Command &command) {
        return command.key == key.key() && command.modifiers == modifiers && (command.whileEditing || !editing);
    });
    if (found == std::end(kCommands))
        return false;
    (this->*found->run)();
    return true;
}

bool GridKeys::escape() {
    const qint32 column = mGrid.Table().Col();
    const bool locked = column >= 0 && column < mGrid.ColumnCount() && mGrid.ColumnAt(column).locked;
    if (!locked)
        mGrid.Raise(FieldEvent(QStringLiteral("Escape")));
    return true;
}

bool GridKeys::swallowsTyping() const {
    const qint32 column = mGrid.Table().Col();
    return !GridCellWriter::takesText(mGrid, column) || (!mGrid.Design().Dynamic && column == 0);
}

void GridKeys::tab(TabDirection direction) {
    mGrid.DropDownClose();
    if (mGrid.Terminated())
        return;
    if (const auto cell = nextCell(direction))
        mGrid.Table().MoveTo(*cell);
    else
        leave(direction);
}

std::optional<GridCell> GridKeys::nextCell(TabDirection direction) const {
    const auto row = mGrid.Table().Bookmark();
    const qint32 first = firstColumn();
    const qint32 last = mGrid.ColumnCount() - 1;
    if (!row || last < first)
        return std::nullopt;
    const qint32 column = mGrid.Table().Col();
    if (direction == TabDirection::kForward) {
        if (column < last)
            return GridCell{*row, column + 1};
        return *row < mGrid.DisplayArray().UpperBound(1) ? std::optional(GridCell{*row + 1, first}) : std::nullopt;
    }
    if (column > first)
        return GridCell{*row, column - 1};
    return *row > 0 ? std::optional(GridCell{*row - 1, last}) : std::nullopt;
}

// Without records for rows the first column names the fields and cannot be entered.
qint32 GridKeys::firstColumn() const { return mGrid.Design().Dynamic ? 0 : 1; }

// Where the form has no further control the focus goes on in the window, so that Tab is never caught in the grid.
void GridKeys::leave(TabDirection direction) {
    bool cancel = false;
    mGrid.Validate(cancel);
    if (cancel || mGrid.Terminated())
        return;
    if (HostControl *next = neighbour(direction)) {
        focusByTab(*next, direction);
        return;
    }
    if (direction == TabDirection::kForward)
        mGrid.Raise(FieldEvent(QStringLiteral("TabToNextField")));
    if (!mGrid.Terminated())
        focusBeyond(*mGrid.Table().CellsSurface().parentWidget(), direction);
}

HostControl *GridKeys::neighbour(TabDirection direction) const {
    const HostControls *controls = mGrid.FormControls();
    if (controls == nullptr)
        return nullptr;
    const auto own = std::ranges::find_if(
        *controls, [this](const HostControl *control) { return control->object() == &mGrid.Field(); });
    return own == controls->end() ? nullptr : NextTabStop(*controls, (*own)->TabIndex(), direction);
}

bool GridKeys::TabLeaves(const QKeyEvent &key) const { return isTab(key) && !nextCell(directionOf(key)); }

void GridKeys::TDBGrid1_GotFocus(Qt::FocusReason reason) try {
    GridTable &table = mGrid.Table();
    const qint32 lastRow = mGrid.DisplayArray().UpperBound(1);
    if (lastRow >= 0 && reason == Qt::TabFocusReason)
        table.MoveTo({0, firstColumn()});
    if (lastRow >= 0 && reason == Qt::BacktabFocusReason)
        table.MoveTo({lastRow, mGrid.ColumnCount() - 1});
    const qint32 column = table.Col();
    if (!mGrid.Terminated() && column >= 0 && column < mGrid.ColumnCount() &&
        mGrid.ColumnAt(column).type == ColumnType::kIdTracker)
        mGrid.RebindIDTrackerDropdown();
}
ERROR_TAIL()

void GridKeys::copy() { mClipboard.mnuCopy_Click(); }

void GridKeys::paste() {
    if ((mClipboard.Ifield_GetEditOperations() & EditOperation::kPaste) != 0)
        mClipboard.mnuPaste_Click();
}

void GridKeys::fillDown() { mFill.FillDown(); }
void GridKeys::showMenu() { mMenu.ShowAtCell(); }
void GridKeys::showHelp() { mGrid.ShowCellHelp(); }
void GridKeys::moveFirst() { mGrid.Table().MoveFirst(); }
void GridKeys::moveLast() { mGrid.Table().MoveLast(); }
