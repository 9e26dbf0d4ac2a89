#pragma once

#include "tier_data.h"

#include <QByteArray>

// Turns a tier's values into the memory image of a radio of that tier.
class ImageEncoder {
  public:
    // level: version level of the radio. Fields that it lacks are reserved.
    ImageEncoder(const TierData &data, qint32 level); // data outlives this object

    // present: what the radio holds; its reserved bits are taken over. Empty: they are zero. Raises error 5 for a
    // present image of another size, and for a value that does not fit its place, naming field and record.
    [[nodiscard]] QByteArray encode(const QByteArray &present = {});
    // The bits that belong to a field or a record count; all others are reserved.
    [[nodiscard]] QByteArray usedBits() const;

  private:
    [[nodiscard]] qint32 parentCapacity(const RecordStructure &structure) const;
    void putTable(const RecordStructure &structure, qint32 parent);
    void putRecord(const RecordStructure &structure, RecordAddress record);
    void markTable(QByteArray &mask, const RecordStructure &structure, qint32 parent) const;

    const TierData &mData;
    const Dictionary &mDictionary;
    qint32 mLevel;
    QByteArray mImage;
};
