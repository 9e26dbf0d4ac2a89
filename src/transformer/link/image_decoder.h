#pragma once

#include "radio_identity.h"
#include "tier_data.h"

#include <QByteArray>

#include <optional>

// Turns the memory image of a radio into a tier's values, aside from any present data. Only a whole and valid image
// succeeds: every record count within its bounds, every value one that its field can have, every identity once, every
// reference to a record that exists (into a table of a child structure: to a number that it can have). Fields that the
// radio's version lacks get their defaults; band, serial number and version level are the radio's own.
class ImageDecoder {
  public:
    explicit ImageDecoder(const Dictionary &dictionary); // outlives this object and what it decodes

    // Nothing for an image that is refused; problem() then says why.
    [[nodiscard]] std::optional<TierData> decode(const RadioIdentity &radio, const QByteArray &image);
    // English: structure or field, record, and what is wrong.
    [[nodiscard]] const QString &problem() const { return mProblem; }

  private:
    struct Table {
        const RecordStructure &structure;
        qint32 parent;
    };

    bool decodeAll(TierData &data);
    void takeFacts(TierData &data, const RadioIdentity &radio) const;
    bool decodeRadio(TierData &data);
    bool decodeTopStructure(TierData &data, const RecordStructure &structure);
    bool decodeChildren(const TierData &data, const RecordStructure &structure, qint32 number, RecordImage &record);
    bool decodeRows(const TierData &data, Table table, qint32 from, qint32 count, std::vector<RecordRow> &rows);
    std::optional<RecordRow> decodeRow(const TierData &data, Table table, qint32 number);
    std::optional<StoredValue> decodeField(const TierData &data, const FieldDefinition &field, RecordAddress record);
    std::optional<qint32> countOf(const TierData &data, Table table);
    bool checkLinks(const TierData &data);
    bool checkIdentities(const TierData &data, const RecordStructure &structure);
    bool checkReference(const TierData &data, const FieldDefinition &field, RecordAddress record);
    bool refuse(const QString &where, qint32 record, const QString &why);

    const Dictionary &mDictionary;
    QByteArray mImage;
    qint32 mLevel = 0;
    QString mProblem;
};
