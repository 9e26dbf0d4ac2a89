#pragma once

#include "data_document.h"

#include <QJsonArray>
#include <QJsonObject>

// Decodes the values of one tier. Raises RunTimeError (5), whose description says what is wrong, for a record count, a
// value or a reference that the tier cannot hold.
class TierJsonReader {
  public:
    TierJsonReader(const Dictionary &dictionary, TierIndex tier);

    void read(const QJsonObject &json, DataDocument &document) const;

  private:
    void readRadio(const QJsonObject &json, TierData &data, UnknownFields &unknown) const;
    void readTable(const RecordStructure &structure, const QJsonObject &json, TierData &data,
                   UnknownFields &unknown) const;
    [[nodiscard]] QJsonArray childRows(const RecordStructure &child, const QJsonObject &json, qint32 parent,
                                       qint32 parents) const;
    [[nodiscard]] RecordRow readRow(const RecordStructure &structure, const QJsonValue &json, RecordAddress record,
                                    const RecordRow &fallback, UnknownFields &unknown) const;
    void checkCount(const RecordStructure &structure, qsizetype count) const;
    void checkValues(const TierData &data) const;
    void checkIdentities(const TierData &data, const RecordStructure &structure) const;

    const Dictionary &mDictionary;
    TierIndex mTier;
};
