#pragma once

#include <QString>

namespace HelpFileName {
// The base name of a radio model's help file, before translation.
[[nodiscard]] QString of(const QString &radioModel);
} // namespace HelpFileName
