#pragma once

#include "loader_names.h"

namespace FieldDefaultParser {
// The default, limitsBy and defaultBy of a field; refuses a default outside limits, raster, list, mask or length.
// References have their targets already.
void read(const LoaderNames &names, FieldDefinition &field, const JsonReader &reader);
} // namespace FieldDefaultParser
