#pragma once

#include <QByteArray>
#include <QString>

// Reading and replacing of whole files. Both raise FileProblem with the path and the system's reason.
namespace WholeFile {
// Greatest file that is read into memory; a bigger one is refused.
inline constexpr qint64 kGreatestBytes = 64LL * 1024 * 1024;

[[nodiscard]] QByteArray read(const QString &path);
// Replaces the content at once: whoever looks sees the old or the new bytes, whole, also after a kill or a power cut.
void replace(const QString &path, const QByteArray &bytes);
// As replace, and keeps the previous content as "<path>.bak".
void replaceWithBackup(const QString &path, const QByteArray &bytes);
} // namespace WholeFile
