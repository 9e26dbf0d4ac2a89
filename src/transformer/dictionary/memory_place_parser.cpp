#include "memory_place_parser.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qint32 kWidestNumber = 4; // bytes

qint32 largestIdentity(const LoaderNames &names, const RecordStructure &structure) {
    if (structure.identity.isValid())
        return names.definition(structure.identity).limits.maximum;
    qint32 most = 0;
    for (const RecordCapacity &capacity : structure.capacity)
        most = std::max(most, capacity.most);
    return most;
}

// Smallest and largest number that the field can store.
std::pair<qint64, qint64> storedRange(const LoaderNames &names, const FieldDefinition &field) {
    if (field.kind == FieldKind::Reference) {
        qint64 largest = 0;
        for (std::size_t place = 0; place < field.to.structures.size(); ++place) {
            const RecordStructure &target = names.parts.structures[field.to.structures[place].slot()];
            const qint64 base = field.to.isMixed() ? qint64(place) * ReferenceTargets::kPlaceFactor : 0;
            largest = std::max(largest, base + largestIdentity(names, target));
        }
        return {0, largest};
    }
    qint64 least = field.limits.minimum;
    qint64 most = field.limits.maximum;
    for (const ListItem &item : field.items) {
        least = std::min<qint64>(least, item.value);
        most = std::max<qint64>(most, item.value);
    }
    if (field.limitsBy) {
        for (const auto &[low, high] : field.limitsBy->limits) {
            least = std::min<qint64>(least, low);
            most = std::max<qint64>(most, high);
        }
    }
    return {least, most};
}

bool fits(std::pair<qint64, qint64> range, const MemoryPlace &place) {
    const qint32 bits = place.bit >= 0 ? 1 : place.bytes * 8;
    if (range.first < 0)
        return range.first >= -(qint64(1) << (bits - 1)) && range.second < (qint64(1) << (bits - 1));
    return range.second < (qint64(1) << bits);
}

MemoryPlace readPlace(const JsonReader &reader) {
    const QJsonArray at = reader.array("at"_L1);
    const bool single = at.size() == 3;
    if (at.size() != 2 && !single)
        reader.refuse("at"_L1, u"must be [byte, bytes] or [byte, 0, bit]"_s);
    MemoryPlace place{reader.scaled("at"_L1, at[0], 0), reader.scaled("at"_L1, at[1], 0), -1};
    if (single)
        place.bit = reader.scaled("at"_L1, at[2], 0);
    if (place.byte < 0 || (single ? place.bytes != 0 || place.bit < 0 || place.bit > 7 : place.bytes < 1))
        reader.refuse("at"_L1, u"must be [byte, bytes] or [byte, 0, bit]"_s);
    return place;
}

} // namespace

std::optional<MemoryPlace> MemoryPlaceParser::read(const LoaderNames &names, const FieldDefinition &field,
                                                   const JsonReader &reader) {
    if (!reader.has("at"_L1))
        return std::nullopt;
    const MemoryPlace place = readPlace(reader);
    const RecordStructure &structure = names.parts.structures[field.structure.slot()];
    if (place.byte + std::max(place.bytes, 1) > structure.recordBytes)
        reader.refuse("at"_L1, u"lies outside the record of %1 bytes"_s.arg(structure.recordBytes));
    if (!field.isStored())
        reader.refuse("at"_L1, u"a field of this kind is not stored"_s);
    if (field.isTextual() && (place.bit >= 0 || place.bytes < field.length))
        reader.refuse("at"_L1, u"is too small for the longest text"_s);
    if (!field.isTextual() && (place.bytes > kWidestNumber || !fits(storedRange(names, field), place)))
        reader.refuse("at"_L1, u"does not fit the field's values"_s);
    return place;
}
