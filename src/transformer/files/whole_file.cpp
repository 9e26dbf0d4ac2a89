#include "whole_file.h"

#include "file_problem.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace {
[[noreturn]] void notWritten(const QString &path, const QString &reason) {
    throw FileProblem(QStringLiteral("The file %0:S could not be written: %1:S."), {path, reason});
}
} // namespace

namespace WholeFile {
QByteArray read(const QString &path) {
    QFile file(path);
    if (!QFileInfo::exists(path))
        throw FileProblem(QStringLiteral("The file %0:S does not exist."), {path});
    if (QFileInfo(path).isDir())
        throw FileProblem(QStringLiteral("%0:S is a folder, not a data file."), {path});
    if (!file.open(QIODevice::ReadOnly))
        throw FileProblem(QStringLiteral("The file %0:S could not be read: %1:S."), {path, file.errorString()});
    if (file.size() > kGreatestBytes)
        throw FileProblem(QStringLiteral("The file %0:S is too big to be a data file."), {path});
    // One byte more than allowed shows a device or a file that grows, without reading it to its end.
    QByteArray bytes = file.read(kGreatestBytes + 1);
    if (file.error() != QFileDevice::NoError || bytes.size() > kGreatestBytes)
        throw FileProblem(QStringLiteral("The file %0:S could not be read: %1:S."), {path, file.errorString()});
    return bytes;
}

void replace(const QString &path, const QByteArray &bytes) {
    QSaveFile file(path);
    // The flush tells that the disk is full: commit() alone would put a file that is cut off in the old one's place.
    const bool written =
        file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush() && file.commit();
    if (!written)
        notWritten(path, file.errorString());
}

void replaceWithBackup(const QString &path, const QByteArray &bytes) {
    if (QFileInfo(path).isFile())
        replace(path + QStringLiteral(".bak"), read(path));
    replace(path, bytes);
}
} // namespace WholeFile
