#pragma once

#include <QString>

// A caption without the marks of its access key: "&Tx Power" gives "Tx Power", "A && B" gives "A & B".
[[nodiscard]] QString plainCaption(const QString &caption);
