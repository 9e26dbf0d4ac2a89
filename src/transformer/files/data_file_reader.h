#pragma once

#include "data_document.h"

#include <QByteArray>

#include <set>

class QJsonObject;

// Reads the text of a data file. Raises FileProblem, which names path and reason, for what is no sound data file of
// ours; nothing half-read ever leaves it.
class DataFileReader {
  public:
    // path is for the messages only.
    DataFileReader(const Dictionary &dictionary, QString path);

    // The header alone, from the first lines; the rest is not looked at.
    [[nodiscard]] DataFileHeader readHeader(const QByteArray &text) const;
    [[nodiscard]] DataDocument read(const QByteArray &text) const;
    // As read, for a text that this program has just sealed: the checksum is not worked out once more.
    [[nodiscard]] DataDocument readJustSealed(const QByteArray &text) const;

  private:
    [[nodiscard]] QJsonObject headerObject(const QByteArray &text) const;
    [[nodiscard]] DataFileHeader checkedHeader(const QJsonObject &object) const;
    [[nodiscard]] DataDocument parse(const QByteArray &text, const QJsonObject &headerJson,
                                     const QString &currentTier) const;
    // Which tiers the object holds; their values are in the document.
    std::set<TierIndex> readTiers(QByteArrayView tiers, DataDocument &document) const;
    void checkVersion(const QString &databaseVersion) const;
    [[noreturn]] void damaged(const QString &reason) const;

    const Dictionary &mDictionary;
    QString mPath;
};
