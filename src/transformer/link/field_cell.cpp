#include "field_cell.h"

#include "image_cell.h"

#include <limits>

bool FieldCell::put(QByteArray &image, qsizetype recordAt, const FieldDefinition &field, const StoredValue &value) {
    const MemoryPlace &place = *field.at;
    const qsizetype at = recordAt + place.byte;
    if (field.isTextual())
        return value.isText() && ImageCell::putText(image, at, place.bytes, value.text());
    if (value.isText())
        return false;
    if (place.bit < 0)
        return ImageCell::putNumber(image, at, place.bytes, value.number());
    ImageCell::putBit(image, at, place.bit, value.number() != 0);
    return value.number() == 0 || value.number() == 1;
}

std::optional<StoredValue> FieldCell::get(const QByteArray &image, qsizetype recordAt, const FieldDefinition &field) {
    const MemoryPlace &place = *field.at;
    const qsizetype at = recordAt + place.byte;
    if (field.isTextual()) {
        if (!ImageCell::isCleanText(image, at, place.bytes))
            return std::nullopt;
        return StoredValue(ImageCell::text(image, at, place.bytes));
    }
    if (place.bit >= 0)
        return StoredValue(qint32(ImageCell::bit(image, at, place.bit)));
    const bool isSigned = field.limits.minimum < 0;
    const qint64 number =
        isSigned ? ImageCell::signedNumber(image, at, place.bytes) : ImageCell::unsignedNumber(image, at, place.bytes);
    if (number > std::numeric_limits<qint32>::max())
        return std::nullopt;
    return StoredValue(qint32(number));
}

void FieldCell::mark(QByteArray &mask, qsizetype recordAt, const FieldDefinition &field) {
    const MemoryPlace &place = *field.at;
    if (place.bit >= 0)
        ImageCell::putBit(mask, recordAt + place.byte, place.bit, true);
    else
        mask.replace(recordAt + place.byte, place.bytes, QByteArray(place.bytes, '\xFF'));
}

bool FieldCell::isPresent(const FieldDefinition &field, TierIndex tier, qint32 level) {
    return field.at.has_value() && field.isStored() && field.levelIn(tier) <= level;
}
