#pragma once

#include "loader_names.h"

namespace MemoryPlaceParser {
// The key "at" of a field; refuses a place outside the record, or too small for the field's values.
[[nodiscard]] std::optional<MemoryPlace> read(const LoaderNames &names, const FieldDefinition &field,
                                              const JsonReader &reader);
} // namespace MemoryPlaceParser
