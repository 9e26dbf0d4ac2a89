#pragma once

#include <QVariant>

#include <vector>

// A two-dimensional array of variant values, 0-based: rows in dimension 1, columns in dimension 2. Lists and grid data
// cross the component's boundary in it. The caller makes an empty one, the component fills it.
//
// Combo lists: column 0 is the item's untranslated text. ID lists: column 0 the text, column 1 the ID; a list with one
// column has its texts as values. Grid data: a row a record, a column a UIID.
class Q_DECL_EXPORT XArrayDB {
  public:
    // Lower bound of dimension 1 or 2: always 0.
    [[nodiscard]] qint32 LowerBound(qint32 dimension) const;
    // Highest row (dimension 1) or column (dimension 2); -1 when there is none.
    [[nodiscard]] qint32 UpperBound(qint32 dimension) const;
    // Cells that lie in the old and in the new shape keep their values, new ones are Empty.
    void ReDim(qint32 upperRow, qint32 upperColumn);
    void Clear();

    // Raise error 9 outside the bounds.
    [[nodiscard]] const QVariant &Value(qint32 row, qint32 column) const;
    void SetValue(qint32 row, qint32 column, const QVariant &value);

    // Row operations of a grid; row counts from 0 and may be one above the highest for an insert.
    void InsertRow(qint32 row);
    void DeleteRow(qint32 row);

  private:
    [[nodiscard]] std::size_t checkedIndex(qint32 row, qint32 column) const;

    qint32 mRows = 0;
    qint32 mColumns = 0;
    std::vector<QVariant> mCells; // row by row
};
