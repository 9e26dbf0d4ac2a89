#include "fld_grid_field.h"

#include "common_error_handler.h"
#include "dimmed_colour.h"
#include "form_controls_of.h"
#include "grid_cell_writer.h"
#include "run_time_error.h"
#include "shell_hourglass.h"
#include "tdb_drop_down.h"
#include "tdb_grid.h"
#include "transformer.h"
#include "translation.h"
#include "value_text.h"

#include <QApplication>
#include <QHeaderView>
#include <QScopedValueRollback>

#include <algorithm>

namespace {
// While one of these is served, a refill belongs to it and ends the selection.
constexpr QStringView kRecordOperations[] = {
    u"AddRecord",        u"InsertRecord",        u"RepeatRecord",       u"DeleteRecord",
    u"SortColumnByUIID", u"ImportRecordByPaste", u"ImportRecordByDrop",
};

[[noreturn]] void badRow(const char *procedure) {
    throw RunTimeError(ErrorNumber::kBadArgument, QString::fromLatin1(procedure), QStringLiteral("Bad row"));
}
} // namespace

fldGridField::fldGridField(const FieldServices &services, const FieldProperties &properties, QWidget *parent)
    : EditableField(services, parent), mProperties(GridProperties::read(properties)), mCells(services.translation),
      mLists(*this, services), mModel(mCells), mTable(new TDBGrid(mModel, mCells, mCycle, services.errors, this)),
      mValues({*this, mColumns, mCells, mLists, *mTable}), mOperations(*this, services),
      mCycle({*this, mLists, mValues, *mTable, mOperations}, services), mHeads(*this, services, mColumns) {
    mColumns.GetDetails(mProperties.fields);
    mModel.setWriter([this](GridCell cell, const QString &text) { return writeCell(cell, text); });
    mTable->setObjectName(QStringLiteral("TDBGrid1"));
    mTable->setEnabled(mProperties.enabled);
    mOperations.buttons.translate(services.translation);
    setFocusProxy(mTable);
    SetTabStop(true);
    applyColours();
}

QWidget *fldGridField::editingPart() const { return mTable; }

GridTable &fldGridField::Table() { return *mTable; }

const HostControls *fldGridField::FormControls() const { return formControlsOf(*this); }

// Events.

void fldGridField::Raise(const FieldEvent &event) {
    const bool isOperation =
        std::ranges::find(kRecordOperations, QStringView(event.name())) != std::end(kRecordOperations);
    const QScopedValueRollback running(mRecordOperations, mRecordOperations + (isOperation ? 1 : 0));
    raise(event);
}

// The present cell.

QVariant fldGridField::Ifield_GetValue() try { return mValues.Ifield_GetValue(); }
ERROR_TAIL({})

bool fldGridField::Ifield_SetValue(const QVariant &Value, bool blnValidate) try {
    mValues.show(Value);
    return !blnValidate || raiseManualValidate();
}
ERROR_TAIL(false)

void fldGridField::Ifield_SetHelpID(qint32 HelpID) try {
    FieldControl::Ifield_SetHelpID(HelpID);
    mTable->setAccessibleDescription(services().translation.NLSStr(component().GetHelpText(Ifield_GetUIID())));
}
ERROR_TAIL()

QVariant fldGridField::Ifield_SetName(const QString &Name) {
    mTable->setAccessibleName(Name);
    return {};
}

qint32 fldGridField::Ifield_GetRecordNr() const {
    return Igrid_Dynamic() && mCells.rows() > 0 ? mTable->Bookmark().value_or(0) + 1 : 1;
}

void fldGridField::Igrid_RevertCurrentCell() try {
    if (!mTable->Bookmark())
        return;
    const QVariant stored = mValues.storedValue();
    if (isTerminated())
        return;
    Ifield_SetValue(stored, false);
    mCycle.noteStored();
}
ERROR_TAIL()

void fldGridField::Igrid_SetValue(const QString &UIID, qint32 RecordNr, const QVariant &Value) try {
    mValues.Igrid_SetValue(UIID, RecordNr, Value);
    if (UIID == Ifield_GetUIID() && RecordNr == Ifield_GetRecordNr())
        mCycle.noteStored();
}
ERROR_TAIL()

bool fldGridField::writeCell(GridCell cell, const QString &text) {
    if (!mTable->MoveTo(cell))
        return false;
    mCycle.BeforeEdit();
    GridCellWriter(*this).SetCellValue(text);
    bool cancel = mTable->Text() != text;
    if (!cancel)
        mCycle.Validate(cancel);
    if (cancel && !isTerminated())
        Igrid_RevertCurrentCell();
    return !cancel;
}

void fldGridField::ShowCellHelp() { services().shell.ShowWhatsThisHelp(component().GetHelpID(Ifield_GetUIID())); }

void fldGridField::RowColChange(qint32 /*lastColumn*/) { mCycle.TDBGrid1_RowColChange(); }

void fldGridField::PickDropdownRow(const XArrayDB &items, qint32 row) {
    mTable->dropDown().setItems(mLists.shownTexts(items));
    mTable->dropDown().setBookmark(row);
}

// Enabled state.

bool fldGridField::Ifield_GetEnabled() const { return mTable->isEnabledTo(this); }

void fldGridField::setAllColumnsEnabled(bool enabled) {
    for (qint32 column = 0; column < ColumnCount(); ++column)
        mModel.setColumnEnabled(column, enabled);
}

void fldGridField::Ifield_SetEnabled() try {
    Ifield_GetUIIDNotFound(false);
    setAllColumnsEnabled(true);
    SetButtonEnabledState(true);
}
ERROR_TAIL()

void fldGridField::Ifield_SetDisabled() try { setAllColumnsEnabled(false); }
ERROR_TAIL()

void fldGridField::Ifield_SetInvisible() { mTable->hide(); }

void fldGridField::Ifield_UIIDNotFound() try {
    Ifield_SetDisabled();
    Ifield_GetUIIDNotFound(true);
}
ERROR_TAIL()

void fldGridField::Igrid_SetColumnDisabled(const QString &UIID) try {
    mModel.setColumnEnabled(mColumns.ColumnNumberByUIID(UIID), false);
}
ERROR_TAIL()

void fldGridField::Igrid_SetColumnEnabled(const QString &UIID) try {
    mModel.setColumnEnabled(mColumns.ColumnNumberByUIID(UIID), true);
}
ERROR_TAIL()

// Columns and rows.

void fldGridField::Igrid_SetColumns() try {
    if (!Ifield_GetEnabled())
        return;
    mHeads.SetColumns(mModel, *mTable);
    mWidensForItems = true;
    QStringList captions;
    for (const GridModel::Column &column : mModel.columns())
        captions << column.caption;
    mTable->setAccessibleName(captions.join(QStringLiteral(", ")));
}
ERROR_TAIL()

QStringList fldGridField::Igrid_GetHeader() const try {
    return Ifield_GetEnabled() ? mHeads.GetHeader() : QStringList();
}
ERROR_TAIL({})

QString fldGridField::Igrid_GetUIIDList() const {
    return Ifield_GetEnabled() ? SetItemsToBarString(mColumns.uiids()) : QString();
}

GridColumnFacts fldGridField::ColumnAt(qint32 column) const {
    if (column < 0 || column >= ColumnCount()) {
        throw RunTimeError(ErrorNumber::kIndexOutOfRange, QStringLiteral("fldGridField"),
                           QStringLiteral("Subscript out of range"));
    }
    const GridModel::Column &shown = mModel.columns()[std::size_t(column)];
    return {.uiid = mColumns.details(column).uiid,
            .caption = shown.caption,
            .type = shown.type,
            .locked = shown.locked,
            .enabled = shown.enabled,
            .mayTakeFocus = Igrid_Dynamic() || column > 0};
}

void fldGridField::Igrid_Rebind(bool /*Dynamic*/) try {
    if (mTable->Col() < 0)
        return;
    const ShellHourglass hourglass(services().shell);
    mLists.ConvertEntriesToUI(mCells.DisplayArray(), mColumns);
    if (isTerminated())
        return;
    mCells.takeOver();
    if (mRecordOperations == 0)
        mTable->reBindKeepingSelection();
    else
        mTable->ReBind();
    if (mWidensForItems && mCells.rows() > 0) {
        mWidensForItems = false;
        mHeads.widenForItems(*mTable, mLists);
    }
    mCycle.noteStored();
}
ERROR_TAIL()

void fldGridField::placeRow(qint32 row, const XArrayDB &cells) {
    XArrayDB converted = cells;
    mLists.ConvertEntriesToUI(converted, mColumns);
    mCells.placeRow(row, converted);
}

void fldGridField::Igrid_AppendRow(const XArrayDB &NewRowArray) try {
    const qint32 last = mCells.appendRow(NewRowArray.UpperBound(2));
    placeRow(last, NewRowArray);
    if (isTerminated())
        return;
    mTable->ReBind();
    mTable->SetBookmark(last);
}
ERROR_TAIL()

void fldGridField::Igrid_InsertRow(const XArrayDB &NewRowArray, qint32 lngRowNumber) try {
    if (Translated())
        SourceArray().InsertRow(std::min(lngRowNumber, SourceArray().UpperBound(1) + 1));
    placeRow(lngRowNumber, NewRowArray);
    mRowInserted = true;
}
ERROR_TAIL()

qint32 fldGridField::IGrid_AppendBlankRow() try {
    const qint32 last = mCells.appendRow(mColumns.count() - 1);
    mTable->ReBind();
    mTable->SetBookmark(last);
    return last;
}
ERROR_TAIL(-1)

// What is shown goes to the position, its source always to the first row.
void fldGridField::IGrid_ModifyRow(qint32 position, const XArrayDB &NewRowArray) try {
    if (NewRowArray.UpperBound(1) < 0 || position < 0 || position >= mCells.rows())
        badRow(__func__);
    XArrayDB converted = NewRowArray;
    mLists.ConvertEntriesToUI(converted, mColumns);
    mCells.modifyRow(position, converted);
    mTable->ReBind();
}
ERROR_TAIL()

void fldGridField::IGrid_RemoveRow(qint32 position) try {
    if (position < 0 || position >= mCells.rows())
        badRow(__func__);
    mTable->SetBookmark(position);
    DisplayArray().DeleteRow(position);
    if (Translated())
        SourceArray().DeleteRow(position);
    mTable->ReBind();
}
ERROR_TAIL()

void fldGridField::Igrid_SetSelectedRow(qint32 lngRow) try {
    if (!mTable->Bookmark())
        return;
    mTable->SetBookmark(lngRow);
    mTable->RemoveSelBookmarks();
}
ERROR_TAIL()

qint32 fldGridField::CurrentColumn() const { return mTable->Col(); }

qint32 fldGridField::CurrentRow() const { return mTable->Bookmark().value_or(-1); }

QString fldGridField::CellValue(qint32 row, qint32 column) const {
    return row < 0 || column < 0 ? mTable->Text() : mCells.displayText({row, column});
}

// Focus and layout.

bool fldGridField::MayLeave() try {
    bool cancel = false;
    mCycle.Validate(cancel);
    return !cancel && EditableField::MayLeave();
}
ERROR_TAIL(true)

void fldGridField::FocusHasLeft() {
    mTable->finishEdit();
    EditableField::FocusHasLeft();
    if (!isTerminated())
        mOperations.sorting.UserControl_ExitFocus();
}

void fldGridField::Ifield_SetFocus() {
    if (mTable->isVisible())
        mTable->SetFocus();
}

TwipSize fldGridField::SetControlSize(const TwipSize &size) {
    mTable->setGeometry(TwipScale::of(*this).toPixels(mOperations.buttons.place(size)));
    return size;
}

void fldGridField::applyColours() {
    const QPalette colours = QApplication::palette();
    mModel.setDisabledColours(dimmedTextColour(colours), colours.brush(QPalette::Active, QPalette::Button));
    mTable->viewport()->update();
}

void fldGridField::showEvent(QShowEvent *event) {
    EditableField::showEvent(event);
    mTable->verticalHeader()->setMinimumSectionSize(1);
    mTable->verticalHeader()->setDefaultSectionSize(gridRowHeight(*mTable));
}
