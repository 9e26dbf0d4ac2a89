#pragma once

#include "field_definition.h"
#include "stored_value.h"

#include <QVariant>

#include <variant>

// Why a value is not taken. One place words it (see RefusalText).
struct ValueFault {
    enum class Kind {
        NotANumber,   // limits
        OutOfRange,   // limits
        OffRaster,    // limits
        BadCharacter, // offending: the first character that may not stand in the text
        TooLong,      // longest
        NotInList,    // no item has this text or value
        AlreadyUsed,  // another record has this identity
        NoSuchRecord, // the reference's target does not exist
        ReadOnly,     // the field takes no value
    };
    Kind kind = Kind::NotANumber;
    NumberLimits limits;
    qint32 longest = 0;
    QString offending; // the value as it was given, or the character
};
using ValueResult = std::variant<StoredValue, ValueFault>;

// The three text forms of values and the way back.
//   shown     what a person reads: a number with its fixed decimals and ".", a frequency as 000.000000 (045.500000), an
//             item's English text, 0 or 1, an identity, "None"
//   raw       what is stored: a number or the text itself
//   boundary  what crosses the component's boundary: a whole number or the shown form for numbers, the item's value
//             for lists, 0 or 1, the shown form for ID trackers
// Parsing checks everything that the field's definition alone can tell; lists that differ by record, targets and
// uniqueness are ValueValidator's.
namespace ValueCodec {
[[nodiscard]] QString shown(const FieldDefinition &field, const StoredValue &value);
[[nodiscard]] QString raw(const StoredValue &value);
[[nodiscard]] QVariant boundary(const FieldDefinition &field, const StoredValue &value);
// A whole number of stored units in shown form, as limits are told: 136000000 is "136.000000" with 6 decimals.
[[nodiscard]] QString shownNumber(qint32 stored, qint32 decimals);
// As shownNumber, without trailing zeros: "136".
[[nodiscard]] QString shortNumber(qint32 stored, qint32 decimals);

// limits: those of the field in its record (FieldLimits); of numbers and identities only. Blanks at the ends of numbers
// and items do not count; a number takes "." and ",". Texts are upper-cased where the mask has only the upper-case
// letter.
[[nodiscard]] ValueResult parseShown(const FieldDefinition &field, const QString &text, const NumberLimits &limits);
[[nodiscard]] ValueResult parseRaw(const FieldDefinition &field, const QString &text, const NumberLimits &limits);
[[nodiscard]] ValueResult parseBoundary(const FieldDefinition &field, const QVariant &value,
                                        const NumberLimits &limits);
// A stored value against the definition: range, raster, list, mask, length, and whether it is number or text.
[[nodiscard]] ValueResult checkStored(const FieldDefinition &field, const StoredValue &value,
                                      const NumberLimits &limits);
} // namespace ValueCodec
