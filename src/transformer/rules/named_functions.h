#pragma once

#include "field_reader.h"

#include <QStringList>

// The functions that the dictionary names: what no table can say. Constant tables; an unknown name is refused by the
// dictionary's data test and answers as described here.
namespace NamedFunctions {
// "function" of a derived field. Unknown: an empty text.
[[nodiscard]] StoredValue derived(const QString &name, const FieldReader &reader, const FieldDefinition &field,
                                  RecordAddress record);
// "function" of a rule. Unknown: true.
[[nodiscard]] bool check(const QString &name, const FieldReader &reader, RecordAddress record);
// "scope" of a list, choice or reference: whether the record may take the item. structure and target: what a reference
// item stands for. Unknown: true.
struct ScopeItem {
    qint32 value = 0; // stored
    StructureIndex structure;
    RecordAddress target;
};
[[nodiscard]] bool inScope(const QString &name, const FieldReader &reader, const FieldDefinition &field,
                           RecordAddress record, const ScopeItem &item);
// The parent whose records a scoped reference to a child structure means; 0 when there is none.
[[nodiscard]] qint32 scopeParent(const QString &name, const FieldReader &reader, RecordAddress record);

[[nodiscard]] QStringList derivedNames();
[[nodiscard]] QStringList checkNames();
[[nodiscard]] QStringList scopeNames();
} // namespace NamedFunctions
