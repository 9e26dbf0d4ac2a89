#pragma once

#include <QByteArray>
#include <QString>

// What a file is, told by its first line of content.
enum class FileKind { Data, Squirt, Foreign };

namespace FileKinds {
// The first lines of the two formats.
inline constexpr QByteArrayView kDataStart = "{\n\"format\": \"KX4600 data\",\n";
inline constexpr QByteArrayView kSquirtStart = "{\n\"format\": \"KX4600 squirt\",\n";

[[nodiscard]] FileKind of(const QByteArray &content);
// Raises FileProblem, with the advice that fits, for content that is no data file.
void requireData(const QString &path, const QByteArray &content);
} // namespace FileKinds
