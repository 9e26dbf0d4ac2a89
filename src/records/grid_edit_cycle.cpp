#include "grid_edit_cycle.h"

#include "cell_editor.h"
#include "cell_format.h"
#include "common_error_handler.h"
#include "grid_lists.h"
#include "grid_operations.h"
#include "grid_values.h"
#include "ifield.h"
#include "tdb_drop_down.h"
#include "tdb_grid.h"
#include "transformer.h"
#include "value_text.h"

#include <QLineEdit>
#include <QScopedValueRollback>

#include <utility>

GridEditCycle::GridEditCycle(const Parts &parts, const FieldServices &services)
    : mParts(parts), mServices(services), mErrors(services.errors) {}

// Leaving a cell.

void GridEditCycle::Validate(bool &cancel) {
    const bool isLabel = !mParts.grid.Design().Dynamic && mParts.table.Col() <= 0;
    if (mValidating || isLabel || !mParts.table.Bookmark() || mParts.grid.Terminated())
        return;
    const QScopedValueRollback validating(mValidating, true);
    commit(cancel);
}

void GridEditCycle::commit(bool &cancel) {
    const qint32 row = mParts.table.Bookmark().value_or(0);
    mParts.table.Update();
    if (hasList(mParts.values.current().type) && mParts.table.Text().isEmpty())
        mParts.values.show(mParts.values.storedValue()); // a list cell cannot be left blank
    formatText();
    if (isLeftAlone())
        return;
    raiseChange(mParts.grid.Field().Ifield_GetRecordNr());
    mParts.grid.Raise(FieldEvent(QStringLiteral("ManualValidate"), out(cancel)));
    if (mParts.grid.Terminated()) {
        cancel = false;
        return;
    }
    if (!cancel)
        noteStored();
    else
        holdCell(row);
    mParts.table.Refresh();
}

void GridEditCycle::holdCell(qint32 row) {
    if (mParts.table.Bookmark() != row)
        mParts.table.SetBookmark(row);
    if (mParts.table.EditActive())
        mParts.table.editor().box().selectAll(); // what is typed next replaces what was refused
}

// Only what was entered: a value that the component gave stays as it came.
void GridEditCycle::formatText() {
    const QString text = mParts.table.Text();
    if (text == mEntered)
        return;
    const QString formatted = CellFormat::of(mParts.values.current().format).formatted(text);
    if (formatted != text)
        mParts.table.SetText(formatted);
}

// A stored value that its list does not hold is no edit, and could only be written as something else.
bool GridEditCycle::isLeftAlone() {
    if (mParts.table.Text() != mEntered || !hasList(mParts.values.current().type))
        return false;
    const QString value = ValueText::of(mParts.values.Ifield_GetValue());
    return value.isEmpty() || ValueText::isUndefined(value);
}

void GridEditCycle::noteStored() { mEntered = mParts.table.Text(); }

void GridEditCycle::raiseChange(qint32 record) { mParts.grid.Raise(FieldEvent(QStringLiteral("Change"), in(record))); }

void GridEditCycle::BeforeRowColChange(bool &Cancel) try { Validate(Cancel); }
ERROR_TAIL_AS("TDBGrid1_BeforeRowColChange")

void GridEditCycle::BeforeColUpdate(qint32 column, bool &Cancel) try {
    const ColumnDetails &details = mParts.values.current();
    if (details.locked || (!mParts.grid.Design().Dynamic && column == 0)) {
        Cancel = true;
        return;
    }
    if (!hasList(details.type))
        return;
    Cancel = ValueText::of(mParts.values.Ifield_GetValue()).isEmpty();
    if (Cancel || details.type != ColumnType::kIdTracker)
        return;
    // The edit goes through whatever the answer.
    (void)mParts.operations.sorting.AsksToSort("The data must be sorted by the first column before you can change this "
                                               "value.  Do you want to sort the data now?",
                                               "Error Changing Value");
}
ERROR_TAIL_AS("TDBGrid1_BeforeColUpdate")

void GridEditCycle::AfterColUpdate(qint32 /*column*/) try { keepSource(); }
ERROR_TAIL_AS("TDBGrid1_AfterColUpdate")

void GridEditCycle::keepSource() {
    const auto row = mParts.table.Bookmark();
    if (!mParts.grid.Translated() || !row)
        return;
    const QString text = mParts.table.Text();
    const bool isId = mParts.values.current().type == ColumnType::kIdTracker;
    const auto source = isId ? mParts.lists.sourceOfName(text) : std::optional(text);
    if (source)
        mParts.grid.SourceArray().SetValue(*row, mParts.table.Col(), *source);
}

// A choice in a list is not told letter by letter: it would be written at each.
void GridEditCycle::Change() try {
    if (!hasList(mParts.values.current().type))
        raiseChange(mParts.grid.Field().Ifield_GetRecordNr());
}
ERROR_TAIL_AS("TDBGrid1_Change")

void GridEditCycle::Toggle() try {
    const bool checked = ValueText::toIntegerOr(mParts.table.Text(), 0) != 0;
    mParts.table.SetText(checked ? QStringLiteral("0") : QStringLiteral("1"));
    keepSource();
    raiseChange(mParts.grid.Field().Ifield_GetRecordNr());
}
ERROR_TAIL()

// Coming to a cell.

void GridEditCycle::RowColChange(qint32 /*lastRow*/, qint32 /*lastColumn*/) try { TDBGrid1_RowColChange(); }
ERROR_TAIL_AS("TDBGrid1_RowColChange")

void GridEditCycle::TDBGrid1_RowColChange() {
    mPrepared.reset();
    noteStored();
    if (mServices.shell.ChangingForms() || mParts.table.Col() < 0)
        return;
    if (!mParts.grid.Design().Dynamic && mParts.table.Col() == 0) {
        mParts.table.SetCol(1);
        return;
    }
    Ifield &field = mParts.grid.Field();
    const qint32 helpId = mParts.grid.Component().GetHelpID(mParts.values.current().uiid);
    field.Ifield_SetHelpID(helpId);
    field.Ifield_SetWhatsThisHelpID(helpId);
    prepareCell();
    if (mParts.grid.Terminated())
        return;
    mParts.grid.Component().FieldGotFocus(field.Ifield_GetUIID());
    if (const auto row = mParts.grid.Terminated() ? std::nullopt : mParts.table.Bookmark())
        mParts.grid.Raise(FieldEvent(QStringLiteral("RowSelectionChanged"), in(*row)));
}

void GridEditCycle::prepareCell() {
    bindList();
    if (!mParts.grid.Terminated())
        bindRules();
    mPrepared = mParts.table.currentCell();
}

// A list may have changed since the cell was entered.
void GridEditCycle::BeforeEdit() try {
    if (mPrepared != mParts.table.currentCell())
        prepareCell();
    else if (!mParts.table.EditActive() && !mParts.table.dropDown().isVisible())
        bindList();
}
ERROR_TAIL()

void GridEditCycle::bindList() {
    const ColumnDetails &column = mParts.values.current();
    if (column.type == ColumnType::kIdTracker)
        RebindIDTrackerDropdown();
    if (column.type != ColumnType::kCombo)
        return;
    const XArrayDB items = mParts.lists.comboItems(column.uiid, mParts.grid.Field().Ifield_GetRecordNr());
    QStringList texts;
    for (qint32 row = 0; row <= items.UpperBound(1); ++row)
        texts << ValueText::of(items.Value(row, 0));
    mParts.table.dropDown().setItems(texts);
}

void GridEditCycle::RebindIDTrackerDropdown() {
    const ColumnDetails &column = mParts.values.current();
    const QString value = ValueText::of(mParts.values.Ifield_GetValue());
    const XArrayDB items = mParts.lists.idItems(column.uiid, mParts.grid.Field().Ifield_GetRecordNr(), value);
    mParts.table.dropDown().setItems(mParts.lists.shownTexts(items));
    mParts.table.dropDown().setBookmark(GridLists::find(items, value));
}

void GridEditCycle::bindRules() {
    QString validation;
    mParts.grid.Raise(FieldEvent(QStringLiteral("GetValidationString"), out(validation)));
    const ColumnDetails &column = mParts.values.current();
    mParts.table.editor().setRules(ValueText::isUndefined(validation) ? QString() : validation,
                                   mParts.grid.Component().GetUIWidth(column.uiid),
                                   CellFormat::of(column.format).inputMask());
}

void GridEditCycle::GotFocus(Qt::FocusReason reason) { mParts.operations.keys.TDBGrid1_GotFocus(reason); }

// The list.

void GridEditCycle::DropDownOpen() {
    mOpened = OpenedList{mParts.table.currentCell(), mParts.grid.Field().Ifield_GetRecordNr(), mParts.table.Text()};
}

void GridEditCycle::DropDownClose() try {
    const auto opened = std::exchange(mOpened, std::nullopt);
    if (opened && opened->cell == mParts.table.currentCell() && !mParts.grid.Terminated())
        reportChoice(*opened);
}
ERROR_TAIL_AS("TDBDropDown1_DropDownClose")

// The record of the opening is told: a row that has become another is not to be changed.
void GridEditCycle::reportChoice(const OpenedList &opened) {
    const QString text = mParts.table.Text();
    if (text.isEmpty() || text == opened.text)
        return;
    mParts.table.Update();
    raiseChange(opened.record);
}

// Heads and keys.

void GridEditCycle::HeadClick(qint32 column) { mParts.operations.sorting.TDBGrid1_HeadClick(column); }

void GridEditCycle::CornerClick() { mParts.operations.clipboard.Ifield_SelectAll(); }

bool GridEditCycle::KeyDown(QKeyEvent &key) { return mParts.operations.keys.TDBGrid1_KeyDown(key); }
