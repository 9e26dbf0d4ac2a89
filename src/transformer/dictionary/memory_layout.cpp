#include "memory_layout.h"

#include <algorithm>

MemoryLayout::MemoryLayout(const std::vector<RecordStructure> &structures, qint32 tierCount, qint32 number)
    : mNumber(number) {
    for (qint32 place = 0; place < tierCount; ++place) {
        const TierIndex tier(place);
        std::vector<Table> tables;
        qint32 offset = 0;
        for (const RecordStructure &structure : structures) {
            const qint32 tableBytes = kCountBytes + structure.in(tier).most * structure.recordBytes;
            const qint32 count = structure.isScoped() ? structures[structure.parent.slot()].in(tier).most : 1;
            tables.push_back({offset, tableBytes, structure.recordBytes});
            offset += count * tableBytes;
        }
        mTables.push_back(std::move(tables));
        mSizes.push_back(offset);
    }
}

qint32 MemoryLayout::countOffset(TierIndex tier, StructureIndex structure, qint32 parent) const {
    const Table &table = mTables[tier.slot()][structure.slot()];
    return table.offset + std::max(parent - 1, 0) * table.tableBytes;
}

qint32 MemoryLayout::recordOffset(TierIndex tier, StructureIndex structure, RecordAddress record) const {
    const Table &table = mTables[tier.slot()][structure.slot()];
    return countOffset(tier, structure, record.parent) + kCountBytes +
           std::max(record.number - 1, 0) * table.recordBytes;
}
