#include "new_records.h"

#include "item_lists.h"

void NewRecords::chooseFreeItems(TierData &data, StructureIndex structure, RecordAddress record, Changes &changes) {
    for (const FieldIndex index : data.dictionary().structure(structure).stored) {
        const FieldDefinition &field = data.dictionary().field(index);
        if (!field.defaultNextFree || !field.hasItems())
            continue;
        const std::vector<FieldItem> items = ItemLists(data).items(index, record);
        if (items.empty())
            continue;
        const Changes made = RecordEditor(data).setValue(index, record, items.front().value);
        changes.insert(changes.end(), made.begin(), made.end());
    }
}

RecordResult NewRecords::insert(TierData &data, StructureIndex structure, RecordAddress record) {
    RecordResult result = RecordEditor(data).insertRecord(structure, record);
    if (result.done())
        chooseFreeItems(data, structure, result.record, result.changes);
    return result;
}

RecordResult NewRecords::copy(TierData &data, StructureIndex structure, RecordAddress record) {
    RecordResult result = RecordEditor(data).copyRecord(structure, record);
    if (result.done())
        chooseFreeItems(data, structure, result.record, result.changes);
    return result;
}
