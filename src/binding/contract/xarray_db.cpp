#include "xarray_db.h"

#include "run_time_error.h"

#include <algorithm>

namespace {
[[noreturn]] void outOfRange() {
    throw RunTimeError(ErrorNumber::kIndexOutOfRange, QStringLiteral("XArrayDB"),
                       QStringLiteral("Subscript out of range"));
}
} // namespace

qint32 XArrayDB::LowerBound(qint32 dimension) const {
    if (dimension != 1 && dimension != 2)
        outOfRange();
    return 0;
}

qint32 XArrayDB::UpperBound(qint32 dimension) const {
    if (dimension != 1 && dimension != 2)
        outOfRange();
    return (dimension == 1 ? mRows : mColumns) - 1;
}

void XArrayDB::ReDim(qint32 upperRow, qint32 upperColumn) {
    if (upperRow < -1 || upperColumn < -1)
        outOfRange();
    const qint32 rows = upperRow + 1;
    const qint32 columns = upperColumn + 1;
    if (columns == mColumns) {
        mCells.resize(std::size_t(rows) * std::size_t(columns));
        mRows = rows;
        return;
    }
    std::vector<QVariant> cells(std::size_t(rows) * std::size_t(columns));
    for (qint32 row = 0; row < std::min(rows, mRows); ++row) {
        for (qint32 column = 0; column < std::min(columns, mColumns); ++column)
            cells[std::size_t(row) * std::size_t(columns) + std::size_t(column)] =
                std::move(mCells[checkedIndex(row, column)]);
    }
    mCells = std::move(cells);
    mRows = rows;
    mColumns = columns;
}

void XArrayDB::Clear() {
    mCells.clear();
    mRows = 0;
    mColumns = 0;
}

std::size_t XArrayDB::checkedIndex(qint32 row, qint32 column) const {
    if (row < 0 || row >= mRows || column < 0 || column >= mColumns)
        outOfRange();
    return std::size_t(row) * std::size_t(mColumns) + std::size_t(column);
}

const QVariant &XArrayDB::Value(qint32 row, qint32 column) const { return mCells[checkedIndex(row, column)]; }

void XArrayDB::SetValue(qint32 row, qint32 column, const QVariant &value) { mCells[checkedIndex(row, column)] = value; }

void XArrayDB::InsertRow(qint32 row) {
    if (row < 0 || row > mRows)
        outOfRange();
    mCells.insert(mCells.begin() + std::ptrdiff_t(row) * mColumns, std::size_t(mColumns), QVariant());
    ++mRows;
}

void XArrayDB::DeleteRow(qint32 row) {
    if (row < 0 || row >= mRows)
        outOfRange();
    const auto first = mCells.begin() + std::ptrdiff_t(row) * mColumns;
    mCells.erase(first, first + mColumns);
    --mRows;
}
