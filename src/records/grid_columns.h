#pragma once

#include "grid_surface.h"
#include "twips.h"

#include <QStringList>

#include <vector>

// A bar string as its items: a bar ends an item, what follows the last bar is the last item, and an empty rest is none.
[[nodiscard]] QStringList GetItemsFromBarString(const QString &text);
// The items joined by single bars.
[[nodiscard]] QString SetItemsToBarString(const QStringList &items);

// What one column of "Fields" says.
struct ColumnDetails {
    QString format; // mask, blank, number format
    QString uiid;
    Twips width; // 0: what is left of the grid for the last column, else as wide as the caption
    ColumnType type = ColumnType::kText;
    bool locked = false;
};

// The columns of a grid as its design describes them, from 0. Five items a column: format, UIID, width, type and locked
// flag ("0" or "-1").
class GridColumns {
  public:
    // Reads a description in place of the one before. Raises error 5 for a column that is cut short or has an unknown
    // type, error 13 for a width or flag that is no number.
    void GetDetails(const QString &fields);

    [[nodiscard]] qint32 count() const { return qint32(mColumns.size()); }
    // Empty details for a column that does not exist.
    [[nodiscard]] const ColumnDetails &details(qint32 column) const;
    [[nodiscard]] QStringList uiids() const;
    // Of the column with this UIID; -1 when unknown.
    [[nodiscard]] qint32 ColumnNumberByUIID(const QString &uiid) const;
    // The UIIDs of the locked columns, joined by bars.
    [[nodiscard]] QString GetDisabledColumns() const;

  private:
    std::vector<ColumnDetails> mColumns;
};

// The class whose values a cell of this type holds, "fldTextField" and so on; "" for derived text.
[[nodiscard]] QString cellTypeName(ColumnType type);
// Whether the cell is chosen from a list.
[[nodiscard]] constexpr bool hasList(ColumnType type) {
    return type == ColumnType::kCombo || type == ColumnType::kIdTracker;
}
