#include "cross_checks.h"

void CrossChecks::run(const FieldReader &reader, std::vector<Finding> &findings) {
    const CrossCheck check(reader, findings);
    for (const auto group : {channels, relations, selcall, radio})
        group(check);
}
