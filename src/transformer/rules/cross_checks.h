#pragma once

#include "final_checks.h"

// The checks that look at more than one field, as a constant table of functions; see FinalChecks. A check whose fields
// the dictionary, the tier or the version lacks finds nothing.
namespace CrossChecks {
void run(const FieldReader &reader, std::vector<Finding> &findings);
} // namespace CrossChecks
