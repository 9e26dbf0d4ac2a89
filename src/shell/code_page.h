#pragma once

#include <QByteArray>

// The system's code page by its usual number.
namespace CodePage {
inline constexpr int kUtf8 = 65001;
// The number of a codeset as the C library names it, for example "UTF-8" or "ISO-8859-1"; 0 for any other.
[[nodiscard]] int ofCodeset(const QByteArray &codeset);
// The environment variable KX4600_ACP where it is set, else that of the locale.
[[nodiscard]] int current();
} // namespace CodePage
