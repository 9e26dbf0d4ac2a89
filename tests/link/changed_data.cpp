#include "changed_data.h"

#include "field_cell.h"
#include "item_lists.h"
#include "record_editor.h"

#include <algorithm>

ChangedData::ChangedData(const Dictionary &dictionary, TierIndex tier, qint32 level)
    : mDictionary(dictionary), mLevel(level), mData(dictionary, tier) {
    mData.setVersionLevel(level);
    addRecords();
    changeFields([](FieldKind kind) { return kind != FieldKind::Reference; });
    changeFields([](FieldKind kind) { return kind == FieldKind::Reference; }); // the numbers that they name stand now
}

void ChangedData::addRecords() {
    constexpr int kAdded = 2;
    RecordEditor editor(mData);
    for (const RecordStructure &structure : mDictionary.structures())
        for (int added = 0; added < kAdded && !structure.isRadio(); ++added) {
            const qint32 parent = structure.isScoped() ? 1 : 0;
            if (parent == 0 || mData.recordCount(structure.parent) > 0)
                editor.insertRecord(structure.index, {parent, mData.recordCount(structure.index, parent) + 1});
        }
}

void ChangedData::changeFields(bool (*areMeant)(FieldKind)) {
    for (const FieldDefinition &field : mDictionary.fields()) {
        if (!areMeant(field.kind) || !FieldCell::isPresent(field, mData.tier(), mLevel))
            continue;
        for (const RecordAddress &record : mData.records(field.structure))
            mData.setValue(field.index, record, other(field, record));
    }
}

StoredValue ChangedData::other(const FieldDefinition &field, RecordAddress record) const {
    StoredValue present = mData.value(field.index, record);
    switch (field.kind) {
    case FieldKind::Flag:
        return 1 - present.number();
    case FieldKind::Number:
        return otherNumber(field, record);
    case FieldKind::List:
    case FieldKind::Choice:
        return otherItem(field, present.number());
    case FieldKind::Text:
        return QString(field.length, field.mask.isEmpty() ? QLatin1Char('x') : field.mask.front());
    case FieldKind::Identity:
        return field.limits.maximum - record.number;
    case FieldKind::Reference:
        return otherTarget(field, record);
    default:
        return present;
    }
}

qint32 ChangedData::otherNumber(const FieldDefinition &field, RecordAddress record) const {
    const NumberLimits limits = FieldReader(mData).limits(field.index, record);
    const qint32 raster = limits.rasters.empty() ? 1 : *std::ranges::min_element(limits.rasters);
    const qint32 highest = limits.maximum - limits.maximum % raster;
    return highest == mData.number(field, record) ? limits.minimum : highest;
}

qint32 ChangedData::otherItem(const FieldDefinition &field, qint32 present) const {
    for (const ListItem &item : field.items)
        if (item.value != present && item.level <= mLevel && item.tiers.contains(mData.tier()))
            return item.value;
    return present;
}

// Where other values leave nothing to choose, any record that exists: the memory can hold it.
qint32 ChangedData::otherTarget(const FieldDefinition &field, RecordAddress record) const {
    const qint32 present = mData.number(field, record);
    const std::vector<FieldItem> items = ItemLists(mData).items(field.index, record);
    if (!items.empty() && items.back().value != present)
        return items.back().value;
    const StructureIndex target = field.to.structures.front();
    const std::vector<RecordAddress> records = mData.records(target);
    return records.empty() ? present : field.to.stored(target, mData.identityOf(target, records.back()));
}

QStringList ChangedData::unchanged() const {
    const TierData fresh(mDictionary, mData.tier());
    QStringList ids;
    for (const FieldDefinition &field : mDictionary.fields()) {
        if (!FieldCell::isPresent(field, mData.tier(), mLevel))
            continue;
        const std::vector<RecordAddress> records = mData.records(field.structure);
        const bool differs = std::ranges::any_of(records, [&](const RecordAddress &record) {
            return !fresh.exists(field.structure, record) ||
                   fresh.value(field.index, record) != mData.value(field.index, record);
        });
        if (!differs)
            ids.append(field.id);
    }
    return ids;
}
