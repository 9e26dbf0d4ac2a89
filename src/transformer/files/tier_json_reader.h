#pragma once

#include "data_document.h"

#include <QByteArrayView>

#include <map>
#include <vector>

// Decodes the values of one tier. Raises RunTimeError (5), whose description says what is wrong, for a record count, a
// value or a reference that the tier cannot hold.
class TierJsonReader {
  public:
    TierJsonReader(const Dictionary &dictionary, TierIndex tier);

    // json: an object of a sound text. "" where it names no version.
    [[nodiscard]] static QString databaseVersion(QByteArrayView json);
    void read(QByteArrayView json, DataDocument &document) const;

  private:
    using Values = std::vector<QByteArrayView>;
    using Tables = std::map<QString, QByteArrayView>; // the arrays of the structures, by name

    void readRadio(const Tables &tables, TierData &data, UnknownFields &unknown) const;
    void readTable(const RecordStructure &structure, const Tables &tables, TierData &data,
                   UnknownFields &unknown) const;
    // The rows of every parent record.
    [[nodiscard]] std::vector<Values> childRows(const RecordStructure &child, const Tables &tables,
                                                std::size_t parents) const;
    [[nodiscard]] RecordRow readRow(const RecordStructure &structure, QByteArrayView json, RecordAddress record,
                                    const RecordRow &fallback, UnknownFields &unknown) const;
    void checkCount(const RecordStructure &structure, std::size_t count) const;
    void checkValues(const TierData &data) const;
    void checkIdentities(const TierData &data, const RecordStructure &structure) const;

    const Dictionary &mDictionary;
    TierIndex mTier;
};
