#pragma once

#include "record_address.h"
#include "stored_value.h"
#include "strong_index.h"

#include <variant>
#include <vector>

// The values of a record in the order of RecordStructure::stored.
using RecordRow = std::vector<StoredValue>;

// A record with all that hangs on it: the rows of each child structure, in the order of RecordStructure::children.
struct RecordImage {
    RecordRow row;
    std::vector<std::vector<RecordRow>> children;
    bool operator==(const RecordImage &) const = default;
};

// The four steps that every edit of a tier's data consists of. Each can be undone exactly; each regards only what it
// names: the references that follow are steps of their own.
struct ValueStep {
    FieldIndex field;
    RecordAddress record;
    StoredValue before;
    StoredValue after;
};
// The record that has the address afterwards; those from it on move down by one.
struct InsertStep {
    StructureIndex structure;
    RecordAddress record;
    RecordImage image;
};
// The record that had the address before.
struct RemoveStep {
    StructureIndex structure;
    RecordAddress record;
    RecordImage image;
};
// The record number `from` of a table gets the number `to`; those between close up.
struct MoveStep {
    StructureIndex structure;
    qint32 parent = 0;
    qint32 from = 0;
    qint32 to = 0;
};
using Change = std::variant<ValueStep, InsertStep, RemoveStep, MoveStep>;
using Changes = std::vector<Change>; // in the order in which they were made

// The step that takes it back.
[[nodiscard]] Change inverse(const Change &change);
// All of them taken back, in the order in which to make them.
[[nodiscard]] Changes inverse(const Changes &changes);
