#pragma once

#include "dictionary.h"

#include <QByteArray>

// The memory image of a radio as it leaves the factory: the records of a new data set, every field at its default.
class DefaultImage {
  public:
    // band: stored value of the band, on which some defaults depend. level: version level of the radio; fields that it
    // lacks are reserved bytes.
    DefaultImage(const Dictionary &dictionary, TierIndex tier, qint32 band, qint32 level);

    // Raises error 5 for a default that does not fit its place.
    [[nodiscard]] QByteArray build();

  private:
    void putStructure(const RecordStructure &structure);
    void putTable(const RecordStructure &structure, qint32 parent, qint32 count);
    void putField(const FieldDefinition &field, qsizetype recordAt, qint32 number);
    [[nodiscard]] qint32 freshCount(const RecordStructure &structure) const;
    [[nodiscard]] qint32 defaultOf(const FieldDefinition &field, qint32 number) const;

    const Dictionary &mDictionary;
    TierIndex mTier;
    qint32 mBand;
    qint32 mLevel;
    QByteArray mImage;
};
