#pragma once

#include "tier_data.h"

#include <vector>

// The current record of each structure that has a position UIID, for one tier. They stand beside the data: no file, no
// image, no journal step has them. A position is 1 to the record count, 0 when there are no records.
class RecordPositions {
  public:
    explicit RecordPositions(const TierData &data);

    [[nodiscard]] qint32 position(StructureIndex structure) const { return mPositions[structure.slot()]; }
    // False, and nothing changed, outside 1 to the record count.
    bool setPosition(const TierData &data, StructureIndex structure, qint32 position);
    // 1, or 0 without records: after New, Open and Read.
    void reset(const TierData &data);
    // Follows its record through the steps just made on the data; clamped after a delete.
    void follow(const TierData &data, const Changes &changes);
    // The address of record `number` of a structure in the present scope: the parent is the one at its position. The
    // radio takes 0 and 1 alike.
    [[nodiscard]] RecordAddress address(const Dictionary &dictionary, StructureIndex structure, qint32 number) const;

  private:
    void clamp(const TierData &data);

    std::vector<qint32> mPositions; // by structure
};
