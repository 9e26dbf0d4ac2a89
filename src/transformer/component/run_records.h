#pragma once

#include <QString>
#include <QStringList>

#include <optional>

// A programming run whose end is not known: what the radio held before and what it was to hold, as CRC-32 of its
// memory.
struct RunRecord {
    QString serialNumber;
    quint32 oldContent = 0;
    quint32 newContent = 0;
};

// The open runs, a file each. One stays after a kill, or when the radio's last answer was lost, until the next contact.
class RunRecords {
  public:
    explicit RunRecords(QString folder);

    // Raises FileProblem.
    void store(const RunRecord &record) const;
    [[nodiscard]] std::optional<RunRecord> of(const QString &serialNumber) const;
    [[nodiscard]] QStringList serialNumbers() const;
    void remove(const QString &serialNumber) const;

  private:
    [[nodiscard]] QString path(const QString &serialNumber) const;

    QString mFolder;
};
