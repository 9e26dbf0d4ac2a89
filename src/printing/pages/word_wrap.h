#pragma once

#include <QString>

// Where a text that does not fit is cut: behind the last blank among its first characters, or, without one, behind the
// last of them. characters is how many fit, at least 1; the text is longer than that.
[[nodiscard]] qsizetype WrapPosition(const QString &text, qsizetype characters);
