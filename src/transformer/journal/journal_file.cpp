#include "journal_file.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFile>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <utility>

namespace {
constexpr qsizetype kCheckDigits = 16;

// Tells a torn or altered line from a whole one.
QByteArray checkOf(const QByteArray &line) {
    return QCryptographicHash::hash(line, QCryptographicHash::Sha1).toHex().first(kCheckDigits);
}

bool lockAtOnce(int descriptor) { return ::flock(descriptor, LOCK_EX | LOCK_NB) == 0; }
} // namespace

JournalFile::JournalFile(QString path, int descriptor) : mPath(std::move(path)), mDescriptor(descriptor) {}

JournalFile::~JournalFile() { ::close(mDescriptor); }

std::unique_ptr<JournalFile> JournalFile::create(const QString &folder) {
    QDir().mkpath(folder);
    const QString stamp = QDateTime::currentDateTimeUtc().toString(QStringLiteral("yyyyMMdd'T'HHmmsszzz'Z'"));
    for (int attempt = 1; attempt < 100; ++attempt) {
        const QString name = QStringLiteral("journal-%1-%2-%3.log").arg(stamp).arg(::getpid()).arg(attempt);
        // Under a hidden name until it is locked, so that no other start can take it for an abandoned one.
        const QString hidden = folder + QStringLiteral("/.") + name;
        const int descriptor =
            ::open(QFile::encodeName(hidden).constData(), O_RDWR | O_CREAT | O_EXCL | O_APPEND | O_CLOEXEC, 0600);
        if (descriptor < 0 && errno == EEXIST)
            continue;
        if (descriptor < 0)
            return nullptr;
        std::unique_ptr<JournalFile> file(new JournalFile(folder + u'/' + name, descriptor));
        if (lockAtOnce(descriptor) && QFile::rename(hidden, file->path()))
            return file;
    }
    return nullptr;
}

std::unique_ptr<JournalFile> JournalFile::openAbandoned(const QString &path) {
    const int descriptor = ::open(QFile::encodeName(path).constData(), O_RDWR | O_APPEND | O_CLOEXEC);
    if (descriptor < 0)
        return nullptr;
    std::unique_ptr<JournalFile> file(new JournalFile(path, descriptor));
    return lockAtOnce(descriptor) ? std::move(file) : nullptr;
}

QStringList JournalFile::inFolder(const QString &folder) {
    QStringList paths;
    for (const QString &name :
         QDir(folder).entryList({QStringLiteral("journal-*.log")}, QDir::Files, QDir::Name | QDir::Reversed))
        paths.append(folder + u'/' + name);
    return paths;
}

bool JournalFile::append(const QByteArray &line) {
    const QByteArray whole = checkOf(line) + ' ' + line + '\n';
    const off_t before = ::lseek(mDescriptor, 0, SEEK_END);
    if (::write(mDescriptor, whole.constData(), std::size_t(whole.size())) == whole.size())
        return true;
    // A part of a line (disk full) would hide every line after it.
    [[maybe_unused]] const int cut = ::ftruncate(mDescriptor, before);
    return false;
}

QList<QByteArray> JournalFile::lines() const {
    QFile file(mPath);
    QList<QByteArray> result;
    if (!file.open(QIODevice::ReadOnly))
        return result;
    const QByteArray content = file.readAll();
    for (qsizetype start = 0, end = 0; (end = content.indexOf('\n', start)) >= 0; start = end + 1) {
        const QByteArray whole = content.mid(start, end - start);
        const QByteArray line = whole.mid(kCheckDigits + 1);
        if (whole.first(qMin(whole.size(), kCheckDigits)) != checkOf(line))
            break;
        result.append(line);
    }
    return result;
}

void JournalFile::remove() { QFile::remove(mPath); }
