#pragma once

#include <QByteArray>

// Values in a radio's memory image: numbers least significant byte first, texts in Latin-1 filled with zero bytes,
// flags as single bits. Offsets are bytes from the image's start; callers keep them inside.
namespace ImageCell {
// width 1 to 4 bytes; a negative number as two's complement. False, and nothing written, if it does not fit the width.
[[nodiscard]] bool putNumber(QByteArray &image, qsizetype at, int width, qint64 value);
[[nodiscard]] qint64 unsignedNumber(const QByteArray &image, qsizetype at, int width);
[[nodiscard]] qint64 signedNumber(const QByteArray &image, qsizetype at, int width);

// False if the text is too long, has a zero byte or a character outside Latin-1.
[[nodiscard]] bool putText(QByteArray &image, qsizetype at, int width, const QString &text);
// Up to the first zero byte. Behind it must be nothing but zero bytes (see isCleanText).
[[nodiscard]] QString text(const QByteArray &image, qsizetype at, int width);
[[nodiscard]] bool isCleanText(const QByteArray &image, qsizetype at, int width);

void putBit(QByteArray &image, qsizetype at, int bit, bool value);
[[nodiscard]] bool bit(const QByteArray &image, qsizetype at, int bit);
} // namespace ImageCell
