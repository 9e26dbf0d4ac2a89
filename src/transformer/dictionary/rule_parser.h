#pragma once

#include "loader_names.h"

namespace RuleParser {
// The rule below a key of a field; names and item texts are resolved. structure: of the record that it is asked for.
// All fields of the names must have been read (their items, too).
[[nodiscard]] Rule read(const LoaderNames &names, const JsonReader &reader, StructureIndex structure);
} // namespace RuleParser
