#pragma once

#include "tier_data.h"

#include <QStringList>

// What a tier's values lose when they are to fit an older database version: the values of the fields and list items
// that it lacks. What still has its default is not lost.
class OlderVersion {
  public:
    OlderVersion(const TierData &data, qint32 level) : mData(data), mLevel(level) {}

    // "Companding (Channels)" for each field that loses a value, in field order, as parameters of a message.
    [[nodiscard]] QStringList lostFields() const;
    // The values as the older version has them, at its level.
    [[nodiscard]] TierData reduced() const;

  private:
    [[nodiscard]] bool loses(const FieldDefinition &field, RecordAddress record) const;
    [[nodiscard]] StoredValue defaultOf(const FieldDefinition &field, RecordAddress record) const;

    const TierData &mData;
    qint32 mLevel;
};
