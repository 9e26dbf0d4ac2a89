#pragma once

#include <QByteArray>
#include <QByteArrayView>

// SHA-256 as FIPS 180-4 defines it. QCryptographicHash gives the same, but takes so long for the file of a full radio
// that it would be the greatest part of each save and load.
namespace Sha256 {
// 64 lower-case digits.
[[nodiscard]] QByteArray hex(QByteArrayView bytes);
} // namespace Sha256
