#pragma once

#include "grid_columns.h"
#include "grid_model.h"
#include "window_services.h"

#include <QFontMetrics>

class GridLists;
class TDBGrid;

// Makes the columns of a grid as the component labels them, and the heads of its report.
class GridHeads {
  public:
    GridHeads(GridSurface &grid, const FieldServices &services, const GridColumns &columns)
        : mGrid(grid), mServices(services), mColumns(columns) {}

    // A column without a label is left off: the radio does not have the field.
    void SetColumns(GridModel &model, TDBGrid &table) const;
    // Gives Combo columns room for the items of a short list, as the rows on show have brought them.
    void widenForItems(TDBGrid &table, const GridLists &lists) const;
    // Each column's label, padded on the left to the field's width, behind a blank.
    [[nodiscard]] QStringList GetHeader() const;

  private:
    [[nodiscard]] QString caption(const QString &uiid) const;
    [[nodiscard]] static int widestItem(const QFontMetrics &metrics, const XArrayDB &items);
    [[nodiscard]] int pixelWidth(const TDBGrid &table, const ColumnDetails &details, const QString &caption) const;

    GridSurface &mGrid;
    FieldServices mServices;
    const GridColumns &mColumns;
};

// The height of a grid's rows in pixels: by the screen's dots per inch, but never less than its font needs.
[[nodiscard]] int gridRowHeight(const TDBGrid &table);
