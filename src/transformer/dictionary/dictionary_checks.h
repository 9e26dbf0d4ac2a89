#pragma once

#include "dictionary.h"

// Checks over the whole dictionary that no single field can make. Raise a RunTimeError naming structure or field.
namespace DictionaryChecks {
// No two fields of a structure share a bit of its record.
void checkMemory(const Dictionary::Parts &parts);
// No field's enable rule depends on the field itself, directly or through others; likewise resets and follows.
void checkCycles(const Dictionary::Parts &parts);
// UIIDs of fields, guides, positions and grids do not name two structures.
void checkUiids(const Dictionary::Parts &parts);
} // namespace DictionaryChecks
