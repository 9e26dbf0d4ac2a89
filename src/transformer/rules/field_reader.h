#pragma once

#include "tier_data.h"

// Reads any field: stored values as they are, a record's number, and derived values through their named functions.
class FieldReader {
  public:
    explicit FieldReader(const TierData &data) : mData(data) {}

    // nullopt when the record does not exist. The radio takes the numbers 0 and 1 alike.
    [[nodiscard]] std::optional<StoredValue> value(FieldIndex field, RecordAddress record) const;
    // The shown form; "" when the record does not exist.
    [[nodiscard]] QString shown(FieldIndex field, RecordAddress record) const;
    // The limits of a number or identity in the present data. record matters where they follow a field of the same
    // record.
    [[nodiscard]] NumberLimits limits(FieldIndex field, RecordAddress record = {}) const;
    // The record in another structure that a rule or function of this record means by a field there: the same record,
    // the radio itself or the parent. nullopt when there is none.
    [[nodiscard]] std::optional<RecordAddress> related(StructureIndex from, RecordAddress record,
                                                       StructureIndex to) const;
    // The record that a reference points to; nullopt for None and for a target that does not exist.
    struct Target {
        StructureIndex structure;
        RecordAddress record;
    };
    [[nodiscard]] std::optional<Target> target(FieldIndex reference, RecordAddress record) const;

    [[nodiscard]] const TierData &data() const { return mData; }
    [[nodiscard]] const Dictionary &dictionary() const { return mData.dictionary(); }

  private:
    const TierData &mData;
};
