#pragma once

#include "editable_field.h"
#include "grid_cells.h"
#include "grid_columns.h"
#include "grid_edit_cycle.h"
#include "grid_heads.h"
#include "grid_lists.h"
#include "grid_model.h"
#include "grid_operations.h"
#include "grid_properties.h"
#include "grid_values.h"
#include "igrid.h"
#include "navigator_grid.h"

class TDBGrid;

// Many records of one type: a row a record, a column a field. All data is the component's; the grid keeps a copy to
// show, which the enabler fills anew whenever something has changed. The record number of a row is its position plus 1.
// A front: what it does stands in its parts.
//
// Properties: ButtonAdd, ButtonInsert, ButtonRepeat, ButtonDelete, ButtonImport (true), Dynamic (false), Fields (""),
// ID ("Undefined"), Enabled (true), ReadOnly (false), RequiresSortBeforeAdd (false), Sortable (true).
// Events: those that the table of events of clsControlItem names for a grid.
class fldGridField final : public EditableField, public Igrid, public NavigatorGrid, private GridSurface {
    Q_OBJECT
  public:
    // Raises error 5 or 13 for a property that does not fit.
    fldGridField(const FieldServices &services, const FieldProperties &properties, QWidget *parent);

    // The commands of the buttons, for a navigator that owns the grid.
    void Add() override { mOperations.commands.cmdAdd_Click(); }
    void Delete() override { mOperations.deletion.cmdDelete_Click(); }
    void Insert() override { mOperations.commands.cmdInsert_Click(); }
    void Repeat() override { mOperations.commands.cmdRepeat_Click(); }
    void AcceleratorsEnabled(bool enabled) { mOperations.buttons.AcceleratorsEnabled(enabled); }

    // A blank row at the end becomes current; its position.
    qint32 IGrid_AppendBlankRow();
    // Raises error 5 for a position outside the rows or an empty row.
    void IGrid_ModifyRow(qint32 position, const XArrayDB &NewRowArray);
    void IGrid_RemoveRow(qint32 position);

    [[nodiscard]] qint32 CurrentColumn() const;
    // -1 while there are no rows.
    [[nodiscard]] qint32 CurrentRow() const;
    [[nodiscard]] qint32 ColumnNumberByUIID(const QString &UIID) const { return mColumns.ColumnNumberByUIID(UIID); }
    // As shown; of the current column's text where one of them is negative.
    [[nodiscard]] QString CellValue(qint32 row, qint32 column) const;

    void Ifield_Delete() override { Delete(); }
    void Ifield_SelectAll() override { mOperations.clipboard.Ifield_SelectAll(); }
    void Ifield_Copy() override { mOperations.clipboard.mnuCopy_Click(); }
    void Ifield_Cut() override { mOperations.clipboard.mnuCut_Click(); }
    void Ifield_Paste() override { mOperations.clipboard.mnuPaste_Click(); }
    qint32 Ifield_GetEditOperations() override { return mOperations.clipboard.Ifield_GetEditOperations(); }
    bool Ifield_GetVisible() const override { return true; }
    QVariant Ifield_GetValue() override;
    // "ManualValidate" where asked for.
    bool Ifield_SetValue(const QVariant &Value, bool blnValidate) override;
    void Ifield_SetHelpID(qint32 HelpID) override;
    QVariant Ifield_SetName(const QString &Name) override;
    QString Ifield_GetName() const override { return Ifield_GetUIID(); }
    // Of the current cell's field.
    QString Ifield_GetUIID() const override { return mValues.current().uiid; }
    // The grid's own identifier.
    void Ifield_SetUIID(const QString &UIID) override { mProperties.design.ID = UIID; }
    void Ifield_SetEnabled() override;
    void Ifield_SetDisabled() override;
    void Ifield_SetInvisible() override;
    bool Ifield_GetEnabled() const override;
    void Ifield_UIIDNotFound() override;
    // 1 where no row is current, and in a fixed grid.
    qint32 Ifield_GetRecordNr() const override;
    // By the current column's type.
    QString Ifield_GetTypeName() const override { return cellTypeName(mValues.current().type); }
    void Ifield_SetFocus() override;
    qint32 Ifield_GetNavigatorStream() const override { return 0; }

    void Igrid_SetColumnDisabled(const QString &UIID) override;
    void Igrid_SetColumnEnabled(const QString &UIID) override;
    void Igrid_AppendRow(const XArrayDB &NewRowArray) override;
    void Igrid_InsertRow(const XArrayDB &NewRowArray, qint32 lngRowNumber) override;
    QStringList Igrid_GetHeader() const override;
    XArrayDB &Igrid_GetArray() override { return mCells.DisplayArray(); }
    void Igrid_SetColumns() override;
    void Igrid_Rebind(bool Dynamic) override;
    QString Igrid_GetUIIDList() const override;
    QString Igrid_GetGridID() const override { return mProperties.design.ID; }
    void Igrid_SetValue(const QString &UIID, qint32 RecordNr, const QVariant &Value) override;
    void Igrid_SetSelectedRow(qint32 lngRow) override;
    void Igrid_RevertCurrentCell() override;
    bool Igrid_Dynamic() const override { return mProperties.design.Dynamic; }

    // The cell first: what it holds must have been written before the host is asked.
    [[nodiscard]] bool MayLeave() override;
    void FocusHasLeft() override;
    [[nodiscard]] bool TabLeaves(const QKeyEvent &key) const override { return mOperations.keys.TabLeaves(key); }
    [[nodiscard]] bool ControlEnabled() const override { return Ifield_GetEnabled(); }
    TwipSize SetControlSize(const TwipSize &size) override;

  protected:
    [[nodiscard]] QWidget *editingPart() const override;
    void applyColours() override;
    void showEvent(QShowEvent *event) override;

  private:
    GridTable &Table() override;
    const GridDesign &Design() const override { return mProperties.design; }
    Ifield &Field() override { return *this; }
    Igrid &Grid() override { return *this; }
    QWidget *Control() override { return this; }
    Transformer &Component() override { return component(); }
    const HostControls *FormControls() const override;
    qint32 ColumnCount() const override { return mModel.columnCount(); }
    GridColumnFacts ColumnAt(qint32 column) const override;
    XArrayDB &DisplayArray() override { return mCells.DisplayArray(); }
    const XArrayDB &DisplayArray() const override { return mCells.DisplayArray(); }
    XArrayDB &SourceArray() override { return mCells.SourceArray(); }
    bool Translated() const override { return mCells.translated(); }
    std::optional<QString> SourceOfName(const QString &translated) const override {
        return mLists.sourceOfName(translated);
    }
    bool RowInserted() const override { return mRowInserted; }
    void ClearRowInserted() override { mRowInserted = false; }
    void Raise(const FieldEvent &event) override;
    bool Terminated() const override { return isTerminated(); }
    void Validate(bool &cancel) override { mCycle.Validate(cancel); }
    void RowColChange(qint32 lastColumn) override;
    void PickDropdownRow(const XArrayDB &items, qint32 row) override;
    void DropDownClose() override { mCycle.DropDownClose(); }
    void RebindIDTrackerDropdown() override { mCycle.RebindIDTrackerDropdown(); }
    void ShowCellHelp() override;
    void ShowHourglass() override { setCursor(Qt::WaitCursor); }
    void ShowPointer() override { unsetCursor(); }
    void SetButtonEnabledState(bool enabled) override { mOperations.buttons.SetButtonEnabledState(enabled); }

    void setAllColumnsEnabled(bool enabled);
    void placeRow(qint32 row, const XArrayDB &cells);
    bool writeCell(GridCell cell, const QString &text);

    GridProperties mProperties;
    GridColumns mColumns;
    GridCells mCells;
    GridLists mLists;
    GridModel mModel;
    TDBGrid *mTable; // owned by this widget
    GridValues mValues;
    GridOperations mOperations;
    GridEditCycle mCycle;
    GridHeads mHeads;
    int mRecordOperations = 0; // record operations under way
    bool mRowInserted = false;
    bool mWidensForItems = false; // the columns are new, and no row has been shown yet
};
