#pragma once

#include "record_address.h"
#include "record_structure.h"
#include "tier_definition.h"

#include <vector>

// Where each structure and record stands in the memory image of each tier. The structures follow each other in file
// order. A table is a record count of two bytes (little-endian) and room for the greatest number of records; a child
// structure has a table for each record that its parent can have. What no field uses is zero.
class MemoryLayout {
  public:
    static constexpr qint32 kCountBytes = 2;

    MemoryLayout() = default;
    MemoryLayout(const std::vector<RecordStructure> &structures, qint32 tierCount, qint32 number);

    // The number of the memory map; a radio of another number is not understood.
    [[nodiscard]] qint32 number() const { return mNumber; }
    [[nodiscard]] qint32 imageSize(TierIndex tier) const { return mSizes[tier.slot()]; }
    // Byte offset of the record count. parent: 1-based for a child structure, else 0.
    [[nodiscard]] qint32 countOffset(TierIndex tier, StructureIndex structure, qint32 parent) const;
    // Byte offset of a record; the radio's own has number 0.
    [[nodiscard]] qint32 recordOffset(TierIndex tier, StructureIndex structure, RecordAddress record) const;

  private:
    struct Table {
        qint32 offset = 0;
        qint32 tableBytes = 0; // of one table
        qint32 recordBytes = 0;
    };

    std::vector<std::vector<Table>> mTables; // by tier, by structure
    std::vector<qint32> mSizes;              // by tier
    qint32 mNumber = 0;
};
