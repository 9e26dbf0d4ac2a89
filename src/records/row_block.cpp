#include "row_block.h"

#include <algorithm>
#include <numeric>

std::vector<qint32> RowBlock::rows() const {
    std::vector<qint32> result(std::size_t(mLast - mFirst + 1));
    std::iota(result.begin(), result.end(), mFirst);
    return result;
}

RowBlock RowBlock::only(qint32 row) {
    RowBlock block;
    block.mFirst = block.mLast = block.mAnchor = row;
    return block;
}

RowBlock RowBlock::extendedTo(qint32 row) const {
    if (empty())
        return only(row);
    RowBlock block = *this;
    block.mFirst = std::min(mAnchor, row);
    block.mLast = std::max(mAnchor, row);
    return block;
}

RowBlock RowBlock::with(qint32 row) const {
    if (empty() || row < mFirst - 1 || row > mLast + 1 || contains(row))
        return only(row);
    RowBlock block = *this;
    block.mFirst = std::min(mFirst, row);
    block.mLast = std::max(mLast, row);
    return block;
}

RowBlock RowBlock::cutTo(qint32 count) const {
    RowBlock block = *this;
    block.mLast = std::min(mLast, count - 1);
    return block.empty() ? RowBlock() : block;
}
