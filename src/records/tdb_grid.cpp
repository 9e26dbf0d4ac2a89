#include "tdb_grid.h"

#include "cell_editor.h"
#include "cell_painter.h"
#include "cell_tips.h"
#include "column_heads.h"
#include "common_error_handler.h"
#include "grid_cells.h"
#include "grid_model.h"
#include "row_heads.h"
#include "table_events.h"
#include "tdb_drop_down.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QScrollBar>

#include <algorithm>
#include <utility>

namespace {
// A text box has its own copy, paste and undo.
bool isTextCommand(const QKeyEvent &key) {
    return key.matches(QKeySequence::Copy) || key.matches(QKeySequence::Cut) || key.matches(QKeySequence::Paste) ||
           key.matches(QKeySequence::SelectAll) || key.matches(QKeySequence::Undo) || key.matches(QKeySequence::Redo);
}
} // namespace

TDBGrid::TDBGrid(GridModel &model, GridCells &cells, TableEvents &events, ErrorReport &errors, QWidget *parent)
    : QTableView(parent), mModel(model), mCells(cells), mEvents(events), mErrors(errors), mKeys(*this), mMouse(*this),
      mEditor(new CellEditor(*viewport(), errors)), mDropDown(new TDBDropDown(this)) {
    mEditor->setParent(this);
    setModel(&model);
    setUpHeads();
    setItemDelegate(new CellPainter(*this));
    setSelectionMode(QAbstractItemView::NoSelection); // rows are selected by their heads alone
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setDragEnabled(false);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    mEditor->box().installEventFilter(this);
    connect(mEditor, &CellEditor::edited, this, &TDBGrid::tellEdited);
    connect(mDropDown, &TDBDropDown::chosen, this, &TDBGrid::takeChoice);
    connect(mDropDown, &TDBDropDown::closed, this, &TDBGrid::listClosed);
}

void TDBGrid::setUpHeads() {
    auto *rows = new RowHeads(mBlock, this);
    setVerticalHeader(rows);
    rows->show();
    connect(rows, &RowHeads::blockAsked, this, &TDBGrid::selectBlock);
    auto *columns = new ColumnHeads(this);
    setHorizontalHeader(columns);
    columns->show();
    // A press on a head sorts; it selects no column.
    disconnect(columns, SIGNAL(sectionPressed(int)), this, SLOT(selectColumn(int)));
    disconnect(columns, SIGNAL(sectionEntered(int)), this, nullptr);
    connect(columns, &QHeaderView::sectionClicked, this, &TDBGrid::clickHead);
}

void TDBGrid::clickHead(int column) { mEvents.HeadClick(column); }

void TDBGrid::selectAll() { mEvents.CornerClick(); }

QWidget &TDBGrid::HeadsSurface() { return *verticalHeader()->viewport(); }

// The cursor.

std::optional<qint32> TDBGrid::Bookmark() const {
    return mRow < 0 || mRow >= ApproxCount() ? std::nullopt : std::optional(mRow);
}

qint32 TDBGrid::ApproxCount() const { return mModel.rowCount(); }

qint32 TDBGrid::VisibleRows() const {
    const int rowHeight = std::max(1, verticalHeader()->defaultSectionSize());
    return ApproxCount() == 0 ? 0 : std::max(1, viewport()->height() / rowHeight);
}

void TDBGrid::SetBookmark(qint32 row) { MoveTo({row, mCol}); }

void TDBGrid::SetCol(qint32 column) { MoveTo({mRow, column}); }

void TDBGrid::SetRow(qint32 place) {
    const qint32 row = verticalScrollBar()->value() + place;
    SetBookmark(std::min(row, ApproxCount() - 1));
}

bool TDBGrid::MoveTo(const GridCell &cell) {
    const auto exists = [this](const GridCell &wanted) {
        return wanted.row >= 0 && wanted.row < ApproxCount() && wanted.column >= 0 &&
               wanted.column < mModel.columnCount();
    };
    if (!exists(cell))
        return false;
    if (cell == currentCell()) {
        showCursor();
        return true;
    }
    if (!commitCell() || !exists(cell))
        return false;
    const GridCell last = currentCell();
    if (cell.row != last.row)
        RemoveSelBookmarks();
    placeCursor(cell);
    if (cell != last)
        mEvents.RowColChange(last.row, last.column);
    return currentCell() == cell;
}

bool TDBGrid::commitCell() {
    if (mAsking || !hasCurrent())
        return true;
    const QScopedValueRollback asking(mAsking, true);
    bool cancel = false;
    mEvents.BeforeRowColChange(cancel);
    return !cancel;
}

void TDBGrid::placeCursor(GridCell cell) {
    finishEdit();
    mRow = cell.row;
    mCol = cell.column;
    showCursor();
}

void TDBGrid::showCursor() {
    const QScopedValueRollback placing(mPlacing, true);
    const QModelIndex index = mModel.index(mRow, mCol);
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
    if (index.isValid())
        scrollTo(index);
    viewport()->update();
}

// An assistive tool may move the current index itself.
void TDBGrid::currentChanged(const QModelIndex &current, const QModelIndex &previous) {
    QTableView::currentChanged(current, previous);
    if (mPlacing || !current.isValid())
        return;
    if (!MoveTo({current.row(), current.column()}))
        showCursor();
}

// The selection.

void TDBGrid::selectBlock(const RowBlock &block) {
    if (block.first() != mRow && !MoveTo({block.first(), mCol}))
        return;
    mBlock = block;
    // Once for many rows that join one by one.
    if (!std::exchange(mShowsLater, true))
        QMetaObject::invokeMethod(this, &TDBGrid::showBlock, Qt::QueuedConnection);
}

void TDBGrid::AddSelBookmark(qint32 row) {
    if (row >= 0 && row < ApproxCount() && !mBlock.contains(row))
        selectBlock(mBlock.with(row));
}

void TDBGrid::RemoveSelBookmarks() {
    if (mBlock.empty())
        return;
    mBlock = {};
    showBlock();
}

void TDBGrid::showBlock() {
    mShowsLater = false;
    const int last = mModel.columnCount() - 1;
    QItemSelection rows;
    if (!mBlock.empty() && last >= 0)
        rows.select(mModel.index(mBlock.first(), 0), mModel.index(mBlock.last(), last));
    selectionModel()->select(rows, QItemSelectionModel::ClearAndSelect);
}

// The rows.

ColumnHeads &TDBGrid::columnHeads() const { return static_cast<ColumnHeads &>(*horizontalHeader()); }

void TDBGrid::setColumnWidths(const std::vector<int> &widths) {
    columnHeads().setWidths(widths);
    mCol = std::min(std::max(mCol, 0), int(widths.size()) - 1);
    mBlock = {};
}

void TDBGrid::ReBind() { bind({}); }

void TDBGrid::reBindKeepingSelection() { bind(mBlock); }

void TDBGrid::bind(const RowBlock &kept) {
    const GridCell last = currentCell();
    const int scrolledTo = verticalScrollBar()->value();
    {
        const QScopedValueRollback placing(mPlacing, true);
        mModel.reBind();
    }
    updateGeometries();
    verticalScrollBar()->setValue(scrolledTo);
    mRow = ApproxCount() == 0 ? -1 : std::clamp(mRow, 0, ApproxCount() - 1);
    mBlock = kept.cutTo(ApproxCount());
    if (mRow != last.row && EditActive())
        finishEdit();
    showCursor();
    showBlock();
    Refresh();
    if (hasCurrent() && mRow != last.row)
        mEvents.RowColChange(last.row, last.column);
}

void TDBGrid::Refresh() {
    if (EditActive() && !mEditor->changed())
        mEditor->setText(mCells.displayText(currentCell()));
    viewport()->update();
}

// The editor.

bool TDBGrid::isEditableNow() const { return hasCurrent() && isEnabled() && mModel.isEditable(mCol); }

bool TDBGrid::hasListNow() const { return isEditableNow() && hasList(mModel.columns()[std::size_t(mCol)].type); }

bool TDBGrid::isCheckNow() const {
    return isEditableNow() && mModel.columns()[std::size_t(mCol)].type == ColumnType::kCheckbox;
}

bool TDBGrid::EditActive() const { return mEditor->active(); }

void TDBGrid::StartEdit() {
    if (EditActive() || !isEditableNow() || isCheckNow())
        return;
    mEvents.BeforeEdit();
    mEditor->setItems(hasListNow() ? mDropDown->items() : QStringList());
    placeEditor();
    mEditor->open(mCells.displayText(currentCell()), mModel.columns()[std::size_t(mCol)].caption);
    placeEditor();
}

void TDBGrid::tellEdited() { mEvents.Change(); }

void TDBGrid::finishEdit() {
    if (!EditActive())
        return;
    mEditor->close(*this);
    viewport()->update();
}

QString TDBGrid::Text() const { return EditActive() ? mEditor->text() : mCells.displayText(currentCell()); }

void TDBGrid::SetText(const QString &text) {
    if (mCells.has(currentCell()))
        mCells.DisplayArray().SetValue(mRow, mCol, text);
    if (EditActive())
        mEditor->setText(text);
    mModel.tellChanged(currentCell());
}

QString TDBGrid::SelText() const { return EditActive() ? mEditor->box().selectedText() : QString(); }

void TDBGrid::SetSelText(const QString &text) {
    if (EditActive())
        mEditor->box().insert(text);
}

void TDBGrid::SetSelStart(qint32 position) {
    if (EditActive())
        mEditor->box().setCursorPosition(position);
}

void TDBGrid::SetSelLength(qint32 length) {
    if (EditActive())
        mEditor->box().setSelection(mEditor->box().cursorPosition(), length);
}

void TDBGrid::Update() {
    if (!EditActive() || !mEditor->changed())
        return;
    bool cancel = false;
    mEvents.BeforeColUpdate(mCol, cancel);
    if (cancel || !EditActive())
        return;
    mEditor->setChanged(false);
    SetText(mEditor->text());
    mEvents.AfterColUpdate(mCol);
}

void TDBGrid::SetFocus() {
    QWidget &part = EditActive() ? static_cast<QWidget &>(mEditor->box()) : *this;
    part.setFocus(Qt::OtherFocusReason);
}

QRect TDBGrid::CellRect() const { return hasCurrent() ? visualRect(mModel.index(mRow, mCol)) : QRect(); }

void TDBGrid::placeEditor() { mEditor->box().setGeometry(CellRect()); }

void TDBGrid::updateGeometries() {
    QTableView::updateGeometries();
    if (mEditor != nullptr)
        placeEditor();
}

void TDBGrid::scrollContentsBy(int dx, int dy) {
    QTableView::scrollContentsBy(dx, dy);
    placeEditor();
}

// The list.

void TDBGrid::openDropDown() {
    if (!hasListNow() || mDropDown->isVisible())
        return;
    mEvents.BeforeEdit();
    if (mDropDown->items().isEmpty() || !hasListNow())
        return;
    const QRect cell = CellRect();
    mDropDown->setBookmark(int(mDropDown->items().indexOf(Text())));
    mDropDown->SetDropdownSize(cell.width(), verticalHeader()->defaultSectionSize());
    mEvents.DropDownOpen();
    mDropDown->open(*viewport(), cell);
}

void TDBGrid::takeChoice(const QString &text) {
    StartEdit();
    if (EditActive() && mEditor->text() != text) {
        mEditor->setText(text);
        mEditor->setChanged(true);
    }
}

void TDBGrid::listClosed(int tab) {
    mEvents.DropDownClose();
    if (EditActive() && !mEditor->changed())
        finishEdit();
    if (tab == 0)
        return;
    QKeyEvent key(QEvent::KeyPress, tab > 0 ? Qt::Key_Tab : Qt::Key_Backtab,
                  tab > 0 ? Qt::NoModifier : Qt::ShiftModifier);
    QCoreApplication::sendEvent(this, &key);
}

void TDBGrid::ToggleCell() {
    if (isCheckNow())
        mEvents.Toggle();
}

// The user's hands.

bool TDBGrid::eventFilter(QObject *watched, QEvent *event) try {
    if (watched != &mEditor->box())
        return QTableView::eventFilter(watched, event);
    if (event->type() == QEvent::ShortcutOverride && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape) {
        event->accept();
        return true;
    }
    if (event->type() != QEvent::KeyPress)
        return false;
    auto &key = static_cast<QKeyEvent &>(*event);
    return !isTextCommand(key) && (mEvents.KeyDown(key) || mKeys.take(key));
}
ERROR_TAIL(false)

bool TDBGrid::event(QEvent *event) {
    if (event->type() == QEvent::ShortcutOverride && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape) {
        event->accept();
        return true;
    }
    if (event->type() == QEvent::KeyPress) {
        // What the editor has left over.
        if (mEditor->box().hasFocus())
            return false;
        // Tab is a key of the grid before it moves the focus.
        if (mEvents.KeyDown(static_cast<QKeyEvent &>(*event)))
            return true;
    }
    return QTableView::event(event);
}

void TDBGrid::keyPressEvent(QKeyEvent *event) try {
    if (EditActive()) {
        mEditor->box().setFocus(Qt::OtherFocusReason);
        mEditor->forward(*event);
    } else {
        event->setAccepted(mKeys.take(*event) || mKeys.typeIntoCell(*event));
    }
}
ERROR_TAIL()

void TDBGrid::inputMethodEvent(QInputMethodEvent *event) {
    StartEdit();
    if (EditActive())
        QCoreApplication::sendEvent(&mEditor->box(), event);
}

void TDBGrid::mousePressEvent(QMouseEvent *event) try { mMouse.press(*event); }
ERROR_TAIL()

// No selecting of cells by a drag.
void TDBGrid::mouseMoveEvent(QMouseEvent * /*event*/) {}

void TDBGrid::mouseReleaseEvent(QMouseEvent * /*event*/) {}

void TDBGrid::mouseDoubleClickEvent(QMouseEvent *event) try { mMouse.doubleClick(*event); }
ERROR_TAIL()

void TDBGrid::focusInEvent(QFocusEvent *event) try {
    {
        const QScopedValueRollback placing(mPlacing, true);
        QTableView::focusInEvent(event);
    }
    if (EditActive())
        mEditor->box().setFocus(Qt::OtherFocusReason);
    else
        mEvents.GotFocus(event->reason());
}
ERROR_TAIL()

bool TDBGrid::viewportEvent(QEvent *event) {
    if (event->type() != QEvent::ToolTip)
        return QTableView::viewportEvent(event);
    FetchCellTips(*this, static_cast<QHelpEvent &>(*event));
    return true;
}

std::optional<qint32> TDBGrid::RowContaining(int y) const {
    const int row = rowAt(y);
    return row < 0 ? std::nullopt : std::optional<qint32>(row);
}

std::optional<qint32> TDBGrid::ColContaining(int x) const {
    const int column = columnAt(x);
    return column < 0 ? std::nullopt : std::optional<qint32>(column);
}
