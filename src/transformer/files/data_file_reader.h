#pragma once

#include "data_document.h"

#include <QByteArray>

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

  private:
    [[nodiscard]] QJsonObject headerObject(const QByteArray &text) const;
    [[nodiscard]] DataFileHeader checkedHeader(const QJsonObject &object) const;
    void checkVersion(const QString &databaseVersion) const;
    [[noreturn]] void damaged(const QString &reason) const;

    const Dictionary &mDictionary;
    QString mPath;
};
