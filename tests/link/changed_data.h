#pragma once

#include "tier_data.h"

// Data in which every field that the tier and the version have differs from its default in every record, as far as it
// can: each value is one that the field can have, numbers of records are unique, references lead to records. Every
// structure that takes records has some.
class ChangedData {
  public:
    ChangedData(const Dictionary &dictionary, TierIndex tier, qint32 level);

    [[nodiscard]] const TierData &data() const { return mData; }
    // Fields that no record has at another value than new data.
    [[nodiscard]] QStringList unchanged() const;

  private:
    void addRecords();
    void changeFields(bool (*areMeant)(FieldKind));
    [[nodiscard]] StoredValue other(const FieldDefinition &field, RecordAddress record) const;
    [[nodiscard]] qint32 otherNumber(const FieldDefinition &field, RecordAddress record) const;
    [[nodiscard]] qint32 otherItem(const FieldDefinition &field, qint32 present) const;
    [[nodiscard]] qint32 otherTarget(const FieldDefinition &field, RecordAddress record) const;

    const Dictionary &mDictionary;
    qint32 mLevel;
    TierData mData;
};
