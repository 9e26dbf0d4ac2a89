#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>
#include <utility>

// The text form of the settings: UTF-8, one section "[General]", a line "key=value" each, with \n, \r and \\ escaped
// in the value and lines that start with ";" passed over.
namespace SettingsText {
// In the order of the file. Keys are written as they were first stored.
using Entries = QList<std::pair<QString, QString>>;

[[nodiscard]] QByteArray write(const Entries &entries);
// Nothing if the text is damaged: not UTF-8, a control character, no section line, a line without "=" or an empty or
// repeated key.
[[nodiscard]] std::optional<Entries> read(const QByteArray &text);
// Position of the key without regard to case, or -1.
[[nodiscard]] qsizetype indexOf(const Entries &entries, const QString &key);
} // namespace SettingsText
