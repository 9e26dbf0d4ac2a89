#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include <memory>

// One window's journal on disk: lines that are only ever appended. The file is locked for as long as the object lives,
// also against a second object of the same process; the lock ends with the process, however that ends.
class JournalFile {
  public:
    ~JournalFile();
    JournalFile(const JournalFile &) = delete;
    JournalFile &operator=(const JournalFile &) = delete;

    // A new, empty file in folder, which is made if need be. Null if it cannot be made.
    [[nodiscard]] static std::unique_ptr<JournalFile> create(const QString &folder);
    // An existing file that nobody holds. Null if a window holds it or it cannot be opened.
    [[nodiscard]] static std::unique_ptr<JournalFile> openAbandoned(const QString &path);
    // All journals in folder, the newest first, held or not.
    [[nodiscard]] static QStringList inFolder(const QString &folder);

    // Hands the line (without a line break in it) to the system before it returns. False: it is not in the file.
    bool append(const QByteArray &line);
    // The lines up to the first that is torn or damaged.
    [[nodiscard]] QList<QByteArray> lines() const;
    // Deletes the file; nothing can be appended any more.
    void remove();
    [[nodiscard]] const QString &path() const { return mPath; }

  private:
    JournalFile(QString path, int descriptor);

    QString mPath;
    int mDescriptor;
};
