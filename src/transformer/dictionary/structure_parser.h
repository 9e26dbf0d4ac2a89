#pragma once

#include "loader_names.h"

// Reads tiers.json and structures.json into the names' parts.
namespace StructureParser {
void readTiers(LoaderNames &names, const JsonReader &file);
void readStructures(LoaderNames &names, const JsonReader &file); // after readTiers
} // namespace StructureParser
