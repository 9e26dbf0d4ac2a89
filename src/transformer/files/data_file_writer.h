#pragma once

#include "data_document.h"

#include <QByteArray>

#include <vector>

// The text of a data file: the header on a line of its own, the current tier and every other tier that differs from its
// defaults, a record a line, and the seal.
class DataFileWriter {
  public:
    explicit DataFileWriter(const DataDocument &document);

    // The header that the document gives; applicationVersion and comment are the caller's, the date is now.
    [[nodiscard]] DataFileHeader header(const QString &applicationVersion, const QString &comment) const;
    // Raises RunTimeError if the text, read again, would not give the same content.
    [[nodiscard]] QByteArray write(const DataFileHeader &header) const;

  private:
    void appendTier(QByteArray &text, const TierData &tier) const;
    void appendStructure(QByteArray &text, const TierData &tier, const RecordStructure &structure) const;
    void appendTable(QByteArray &text, const TierData &tier, const RecordStructure &structure, qint32 parent) const;
    void appendRecord(QByteArray &text, const TierData &tier, const RecordStructure &structure,
                      RecordAddress record) const;

    const DataDocument &mDocument;
    const Dictionary &mDictionary;
    std::vector<QByteArray> mKeys; // by field: "UIID":
};
