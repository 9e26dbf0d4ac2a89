#include "field_reader.h"

#include "named_functions.h"
#include "value_codec.h"

#include <algorithm>

std::optional<StoredValue> FieldReader::value(FieldIndex index, RecordAddress record) const {
    const FieldDefinition &field = dictionary().field(index);
    if (!mData.exists(field.structure, record))
        return std::nullopt;
    if (field.isStored())
        return field.isTextual() ? StoredValue(mData.text(field, record)) : StoredValue(mData.number(field, record));
    if (field.kind == FieldKind::Derived)
        return NamedFunctions::derived(field.function, *this, field, record);
    return StoredValue(record.number);
}

QString FieldReader::shown(FieldIndex field, RecordAddress record) const {
    const std::optional<StoredValue> found = value(field, record);
    return found ? ValueCodec::shown(dictionary().field(field), *found) : QString();
}

NumberLimits FieldReader::limits(FieldIndex index, RecordAddress record) const {
    const FieldDefinition &field = dictionary().field(index);
    NumberLimits result = field.limits;
    if (!field.limitsBy)
        return result;
    const FieldDefinition &by = dictionary().field(field.limitsBy->field);
    const std::optional<RecordAddress> source = related(field.structure, record, by.structure);
    if (!source || !mData.exists(by.structure, *source))
        return result;
    const auto &table = field.limitsBy->limits;
    const auto last = qint32(table.size()) - 1;
    const auto row = std::size_t(std::clamp(mData.number(by, *source), 0, last));
    result.minimum = table[row].first;
    result.maximum = table[row].second;
    return result;
}

std::optional<RecordAddress> FieldReader::related(StructureIndex from, RecordAddress record, StructureIndex to) const {
    if (from == to)
        return record;
    if (to == dictionary().radio())
        return RecordAddress{};
    const RecordStructure &structure = dictionary().structure(from);
    if (structure.parent != to)
        return std::nullopt;
    return RecordAddress{0, structure.isFlat() ? (record.number - 1) / structure.perParent + 1 : record.parent};
}

std::optional<FieldReader::Target> FieldReader::target(FieldIndex reference, RecordAddress record) const {
    const FieldDefinition &field = dictionary().field(reference);
    if (!mData.exists(field.structure, record))
        return std::nullopt;
    const qint32 stored = mData.number(field, record);
    const StructureIndex structure = field.to.structureOf(stored);
    if (!structure.isValid())
        return std::nullopt;
    const bool scoped = dictionary().structure(structure).isScoped();
    const qint32 parent = scoped ? NamedFunctions::scopeParent(field.scope, *this, record) : 0;
    const auto found = mData.recordByIdentity(structure, field.to.identityOf(stored), parent);
    return found ? std::optional(Target{structure, *found}) : std::nullopt;
}
