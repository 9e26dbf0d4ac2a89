#pragma once

#include "record_editor.h"

// New records as the user gets them: as RecordEditor makes them, with a free item in each choice whose items no two
// records may share.
namespace NewRecords {
[[nodiscard]] RecordResult insert(TierData &data, StructureIndex structure, RecordAddress record);
[[nodiscard]] RecordResult copy(TierData &data, StructureIndex structure, RecordAddress record);
// The first free items in a record that was just made; the steps are added to changes.
void chooseFreeItems(TierData &data, StructureIndex structure, RecordAddress record, Changes &changes);
} // namespace NewRecords
