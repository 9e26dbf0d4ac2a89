#include "cross_check.h"

std::optional<FieldIndex> CrossCheck::field(const QString &id) const {
    const FieldIndex index = reader.dictionary().indexOf(id);
    return index.isValid() && mRules.hasField(index) ? std::optional(index) : std::nullopt;
}

bool CrossCheck::inForce(FieldIndex index, RecordAddress record) const {
    const FieldDefinition &definition = reader.dictionary().field(index);
    return mRules.holds(definition.enabledWhen, definition.structure, record);
}
