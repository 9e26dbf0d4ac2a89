#pragma once

#include "cross_check.h"

// The checks that look at more than one field, or at more than a field's definition says; see FinalChecks.
namespace CrossChecks {
void run(const FieldReader &reader, std::vector<Finding> &findings);

// Relations between the values of a record, as tables.
void relations(const CrossCheck &check);
// Channels, scan groups and networks.
void channels(const CrossCheck &check);
// Selcall systems: tones and the letters of the formats.
void selcall(const CrossCheck &check);
// References, pins and settings of the radio itself.
void radio(const CrossCheck &check);
} // namespace CrossChecks
