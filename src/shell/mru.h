#pragma once

#include "process_values.h"

#include <QString>
#include <QStringList>

// The recent files, newest first, at most ten, kept in the settings "MRUNum" and "MRU1" to "MRU10". Indices count
// from 1.
class clsMRU {
  public:
    explicit clsMRU(const ProcessValues &process);

    [[nodiscard]] qint32 Num() const;
    // The newest entry, "" when there is none; setting it is Save.
    [[nodiscard]] QString Last() const;
    void Last(const QString &strFileName);
    // The path shortened for a menu; "" for an index above Num.
    [[nodiscard]] QString GetDisplayName(qint32 Index) const;
    [[nodiscard]] QString GetFileName(qint32 Index) const;
    [[nodiscard]] QStringList GetArray() const;
    // Puts the name first; one that is there already moves up. The comparison is exact.
    void Save(const QString &strFileName);

    // The shortening by itself: folders in the middle of a path of 31 characters or more give way to dots.
    [[nodiscard]] static QString Shortened(const QString &fileName);

  private:
    const ProcessValues &mProcess;
};
