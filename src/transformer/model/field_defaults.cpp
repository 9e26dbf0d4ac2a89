#include "field_defaults.h"

#include <algorithm>

StoredValue FieldDefaults::byTable(const FieldDefinition &field, qint32 source) const {
    const std::vector<qint32> &values = field.defaultBy.values;
    const bool known = source >= 0 && source < qint32(values.size());
    return known ? values[std::size_t(source)] : field.defaultNumber;
}

StoredValue FieldDefaults::defaultOf(FieldIndex index, qint32 parent) const {
    const Dictionary &dictionary = mData.dictionary();
    const FieldDefinition &field = dictionary.field(index);
    if (field.isTextual())
        return field.defaultText;
    if (field.kind == FieldKind::Identity)
        return nextFreeIdentity(field.structure, parent, field.limits.minimum).value_or(field.limits.minimum);
    if (!field.defaultBy.field.isValid())
        return field.defaultNumber;
    const FieldDefinition &source = dictionary.field(field.defaultBy.field);
    // In a new record the source has its default too; that of the radio is asked while the radio itself is new.
    if (source.structure == field.structure)
        return byTable(field, defaultOf(source.index, parent).number());
    return byTable(field, mData.number(source, {}));
}

StoredValue FieldDefaults::defaultFor(FieldIndex index, RecordAddress record) const {
    const FieldDefinition &field = mData.dictionary().field(index);
    const FieldIndex source = field.defaultBy.field;
    if (source.isValid() && mData.dictionary().field(source).structure == field.structure)
        return byTable(field, mData.value(source, record).number());
    return defaultOf(index, record.parent);
}

std::optional<qint32> FieldDefaults::nextFreeIdentity(StructureIndex structure, qint32 parent, qint32 from) const {
    const FieldDefinition &identity = mData.dictionary().field(mData.dictionary().structure(structure).identity);
    for (qint32 number = from; number <= identity.limits.maximum; ++number) {
        if (!mData.recordByIdentity(structure, number, parent))
            return number;
    }
    return std::nullopt;
}

RecordRow FieldDefaults::newRow(const RecordStructure &structure, qint32 parent) const {
    RecordRow row;
    row.reserve(structure.stored.size());
    for (const FieldIndex field : structure.stored)
        row.push_back(defaultOf(field, parent));
    return row;
}

RecordImage FieldDefaults::newRecord(StructureIndex index, qint32 parent) const {
    const Dictionary &dictionary = mData.dictionary();
    const RecordStructure &structure = dictionary.structure(index);
    RecordImage image{newRow(structure, parent), {}};
    for (const StructureIndex childIndex : structure.children) {
        const RecordStructure &child = dictionary.structure(childIndex);
        const qint32 count = child.isFlat() ? child.perParent : child.in(mData.tier()).fresh;
        // The parent does not exist yet, so its children are numbered from the lowest identity.
        RecordRow row = newRow(child, 0);
        std::vector<RecordRow> rows;
        for (qint32 number = 0; number < count; ++number) {
            rows.push_back(row);
            for (std::size_t i = 0; i < row.size(); ++i) {
                if (child.stored[i] == child.identity)
                    row[i] = row[i].number() + 1;
            }
        }
        image.children.push_back(std::move(rows));
    }
    return image;
}

bool FieldDefaults::fieldDiffers(const TierData &fresh, const FieldDefinition &field) const {
    if (mData.totalRecordCount(field.structure) != fresh.totalRecordCount(field.structure))
        return true;
    if (!field.isStored())
        return false;
    const std::vector<RecordAddress> records = mData.records(field.structure);
    return std::ranges::any_of(records, [&](RecordAddress record) {
        return !fresh.exists(field.structure, record) ||
               mData.value(field.index, record) != fresh.value(field.index, record);
    });
}

bool FieldDefaults::formDiffers(const QString &form) const {
    const TierData fresh(mData.dictionary(), mData.tier());
    return std::ranges::any_of(mData.dictionary().fieldsOfForm(form),
                               [&](FieldIndex field) { return fieldDiffers(fresh, mData.dictionary().field(field)); });
}

bool FieldDefaults::differs() const { return !mData.sameValues(TierData(mData.dictionary(), mData.tier())); }
