#pragma once

#include "field_definition.h"
#include "stored_value.h"

#include <QByteArray>

#include <optional>

// One field's value in the memory image; recordAt is the byte offset of its record. Fields with a memory place only.
namespace FieldCell {
// False if the value does not fit the place.
[[nodiscard]] bool put(QByteArray &image, qsizetype recordAt, const FieldDefinition &field, const StoredValue &value);
// Nothing for a text with bytes behind its end.
[[nodiscard]] std::optional<StoredValue> get(const QByteArray &image, qsizetype recordAt, const FieldDefinition &field);
// Sets the bits that belong to the field.
void mark(QByteArray &mask, qsizetype recordAt, const FieldDefinition &field);
// True for a field that a radio of this tier and version level has in its memory.
[[nodiscard]] bool isPresent(const FieldDefinition &field, TierIndex tier, qint32 level);
} // namespace FieldCell
