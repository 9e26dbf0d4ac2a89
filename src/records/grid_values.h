#pragma once

#include "grid_columns.h"
#include "grid_surface.h"

class GridCells;
class GridLists;
class TDBGrid;

// The traffic of values between the cells of a grid and the component's side of it.
class GridValues {
  public:
    struct Parts {
        GridSurface &grid;
        const GridColumns &columns;
        GridCells &cells;
        GridLists &lists;
        TDBGrid &table;
    };
    explicit GridValues(const Parts &parts) : mParts(parts) {}

    // The design of the column that the current cell belongs to; the first column's where no cell is current.
    [[nodiscard]] const ColumnDetails &current() const;

    // The value of the current cell, what is being typed included; "Undefined" while there are no rows, "" for a Combo
    // text that its list does not have.
    [[nodiscard]] QVariant Ifield_GetValue();
    // Shows the value in the current cell; ends an edit of it.
    void show(const QVariant &value);
    // Writes one cell from the component's side; the cursor goes to its row. Nothing happens for an unknown UIID or
    // record, or while the present cell refuses to be left.
    void Igrid_SetValue(const QString &UIID, qint32 RecordNr, const QVariant &Value);
    // The component's value of the current cell.
    [[nodiscard]] QVariant storedValue() const;

  private:
    [[nodiscard]] QString comboText(const QString &uiid, const QVariant &value) const;
    void showFixedValue(const QString &uiid, const QVariant &value);

    Parts mParts;
};
