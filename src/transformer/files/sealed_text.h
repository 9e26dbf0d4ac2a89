#pragma once

#include <QByteArray>

#include <optional>

// The seal at the end of a data file: a JSON object whose last line holds the SHA-256 of every byte before that line.
// The whole stays one JSON text.
namespace SealedText {
// open: an object's text up to and with the line break after its last comma.
[[nodiscard]] QByteArray seal(const QByteArray &open);
// The hash, in hex, that the last line of text names; nothing if text does not end in a seal.
[[nodiscard]] std::optional<QByteArray> statedHash(const QByteArray &text);
// True if text ends in a seal that fits the bytes before it.
[[nodiscard]] bool isIntact(const QByteArray &text);
} // namespace SealedText
