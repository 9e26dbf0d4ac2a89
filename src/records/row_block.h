#pragma once

#include <QtGlobal>

#include <vector>

// The rows that are selected as a whole: one block, or none. Rows count from 0.
class RowBlock {
  public:
    [[nodiscard]] bool empty() const { return mLast < mFirst; }
    [[nodiscard]] bool contains(qint32 row) const { return row >= mFirst && row <= mLast; }
    [[nodiscard]] qint32 first() const { return mFirst; }
    [[nodiscard]] qint32 last() const { return mLast; }
    // From the top.
    [[nodiscard]] std::vector<qint32> rows() const;

    // What the block becomes by a gesture on a row's head.
    [[nodiscard]] static RowBlock only(qint32 row);
    // From the row at which the block was begun.
    [[nodiscard]] RowBlock extendedTo(qint32 row) const;
    // A row beside the block joins it, any other begins a new one.
    [[nodiscard]] RowBlock with(qint32 row) const;
    // Without the rows from count on.
    [[nodiscard]] RowBlock cutTo(qint32 count) const;

  private:
    qint32 mFirst = 0;
    qint32 mLast = -1;
    qint32 mAnchor = 0;
};
