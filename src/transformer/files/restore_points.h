#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

// Data files that stand for what a radio held before it was programmed, or for work that was not recovered: a folder
// for each serial number, the newest kept.
class RestorePoints {
  public:
    static constexpr int kKept = 20; // of one radio

    explicit RestorePoints(QString folder);

    // Stores the text of a data file and drops the oldest beyond kKept. Answers its path; raises FileProblem.
    [[nodiscard]] QString store(const QString &serialNumber, const QByteArray &dataFile) const;
    [[nodiscard]] QStringList serialNumbers() const;
    // Paths, the newest first.
    [[nodiscard]] QStringList of(const QString &serialNumber) const;

  private:
    QString mFolder;
};
