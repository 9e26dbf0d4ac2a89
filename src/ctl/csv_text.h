#pragma once

#include <QByteArray>
#include <QStringList>

#include <vector>

// Tables as text (RFC 4180): commas, cells with a comma, a quote or a line break in quotes, quotes in them doubled.
namespace CsvText {
// UTF-8, every row ended by CR LF.
[[nodiscard]] QByteArray write(const std::vector<QStringList> &rows);
// Takes CR LF and LF, with or without a byte order mark and a line break at the end; a line without any character is
// no row. Raises FileProblem, naming path and line, for text that is no such table or no UTF-8.
[[nodiscard]] std::vector<QStringList> read(const QString &path, const QByteArray &bytes);
} // namespace CsvText
