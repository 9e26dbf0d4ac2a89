#pragma once

#include "loader_names.h"

namespace ItemListParser {
// Refuses a value that stands twice.
[[nodiscard]] ItemList read(const LoaderNames &names, const JsonReader &reader, const QJsonArray &items);
} // namespace ItemListParser
