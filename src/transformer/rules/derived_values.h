#pragma once

#include "field_reader.h"

// The functions of derived fields; see NamedFunctions for the table of their names.
namespace DerivedValues {
// Caption of the tier, such as "KX4600 Standard".
[[nodiscard]] StoredValue tierCaption(const FieldReader &reader, RecordAddress record);
// Text of a network's signalling type.
[[nodiscard]] StoredValue signallingTypeText(const FieldReader &reader, RecordAddress record);
// The hexadecimal ANI identity of an MDC1200 system as a decimal number; "" when it is empty.
[[nodiscard]] StoredValue radioIdNumber(const FieldReader &reader, RecordAddress record);
// A free format sequence as it is sent: digits, gaps of n periods as "-n-", the status behind "/".
[[nodiscard]] StoredValue sequenceText(const FieldReader &reader, RecordAddress record);
// That of the selcall system's nth sequence, from 1.
template <qint32 N>
[[nodiscard]] StoredValue sequenceTextOf(const FieldReader &reader, RecordAddress system);
[[nodiscard]] StoredValue sequenceTextAt(const FieldReader &reader, RecordAddress system, qint32 place);

template <qint32 N>
StoredValue sequenceTextOf(const FieldReader &reader, RecordAddress system) {
    return sequenceTextAt(reader, system, N);
}
} // namespace DerivedValues
