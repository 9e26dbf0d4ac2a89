#pragma once

#include "tier_data.h"

// The defaults of new records, and the comparison with them.
class FieldDefaults {
  public:
    explicit FieldDefaults(const TierData &data) : mData(data) {}

    // The default of a stored field in a new record; it may follow another field of the present data, such as the band.
    // An identity's is the lowest free one below the parent; its minimum when none is free.
    [[nodiscard]] StoredValue defaultOf(FieldIndex field, qint32 parent = 0) const;
    // As defaultOf, where it follows a field of the same record: by that record's present value.
    [[nodiscard]] StoredValue defaultFor(FieldIndex field, RecordAddress record) const;
    // The lowest free identity from `from` on; nullopt when all are taken. Structures with an identity field only.
    [[nodiscard]] std::optional<qint32> nextFreeIdentity(StructureIndex structure, qint32 parent, qint32 from) const;
    // A new record with the children and flat rows that a new data set gives it.
    [[nodiscard]] RecordImage newRecord(StructureIndex structure, qint32 parent) const;
    // True when a field of the form differs from new data: in its value in any record, or in the number of records.
    [[nodiscard]] bool formDiffers(const QString &form) const;
    // True when any value or record count differs from new data.
    [[nodiscard]] bool differs() const;

  private:
    [[nodiscard]] StoredValue byTable(const FieldDefinition &field, qint32 source) const;
    [[nodiscard]] RecordRow newRow(const RecordStructure &structure, qint32 parent) const;
    [[nodiscard]] bool fieldDiffers(const TierData &fresh, const FieldDefinition &field) const;

    const TierData &mData;
};
