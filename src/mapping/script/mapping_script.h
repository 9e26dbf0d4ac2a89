#pragma once

#include <QDate>
#include <QString>
#include <QStringList>

// What a test script holds.
struct MappingScript {
    QStringList uiFields;       // its own lines of "UI Fields:"
    QStringList allFields;      // with those of all initial states before them: what a full replay runs
    QString initialStateFile;   // the script to run first; "" for none
    QStringList comments;       // the purpose
    QStringList databaseFields; // names of the fields to compare
    QString fileName;           // full path; "" for a new one

    // For the line that tells of what the script was made.
    struct Origin {
        QString tierName;
        QString version;
        QDate date;
    };
    // The lines of the file, without line ends.
    [[nodiscard]] QStringList lines(const Origin &origin) const;

  private:
    [[nodiscard]] QStringList header(const Origin &origin) const;
};

namespace MappingNames {
// Behind the last "/" or "\".
[[nodiscard]] QString withoutFolder(const QString &fileName);
} // namespace MappingNames
