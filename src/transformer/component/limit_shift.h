#pragma once

#include "record_editor.h"

// The edit of a field that other fields' limits follow, such as the radio's band: what lies outside the new limits is
// moved to the default there.
class LimitShift {
  public:
    LimitShift(const TierData &data, FieldIndex field, RecordAddress record)
        : mData(data), mField(field), mRecord(record) {}

    struct Place {
        FieldIndex field;
        RecordAddress record;
    };
    // True when the field decides about limits and gets another value.
    [[nodiscard]] bool concerns(const StoredValue &value) const;
    // The values that lie outside the limits that go with the value.
    [[nodiscard]] std::vector<Place> displaced(const StoredValue &value) const;
    // After the edit: sets what is outside to its default; the steps are added to changes.
    void moveInside(TierData &data, Changes &changes) const;

  private:
    [[nodiscard]] std::vector<FieldIndex> limited() const;

    const TierData &mData;
    FieldIndex mField;
    RecordAddress mRecord;
};
