#include "record_operations.h"

#include "field_reader.h"
#include "new_records.h"
#include "refusal.h"

#include <algorithm>
#include <numeric>

namespace {
// Whether one value stands before another: numbers by size, texts as people sort them.
bool isBefore(const StoredValue &left, const StoredValue &right) {
    return left.isText() ? left.text().localeAwareCompare(right.text()) < 0 : left.number() < right.number();
}
} // namespace

bool RecordOperations::finish(const RecordStructure &structure, const RecordResult &result, const QString &action) {
    if (!result.done()) {
        mState.tell(RefusalText::ofRecord(mState.current(), *result.refusal));
        return false;
    }
    mState.positions().follow(mState.current(), result.changes);
    mState.journal.record(mState.tier(), result.changes);
    mNotifier.raiseAfterRecords(result.changes);
    mState.events.raise([](TransformerEvents &listener) { listener.TransformerEvents_FieldHasChanged(); });
    mState.events.lastAction(action, structure.label);
    return true;
}

void RecordOperations::AddRecord(const QString &uiid, qint32 &recordNr, bool &ok) {
    ok = false;
    const RecordStructure *structure = mState.findStructure(uiid);
    if (structure == nullptr || structure->isRadio())
        return;
    const qint32 last = mFields.GetNumberOfRecords(uiid);
    const RecordAddress record = mState.address(structure->index, last + 1);
    const RecordResult result = NewRecords::insert(mState.current(), structure->index, record);
    ok = finish(*structure, result, QStringLiteral("Added"));
    if (ok)
        recordNr = result.record.number;
}

void RecordOperations::InsertRecord(const QString &uiid, qint32 recordNr, bool &ok) {
    ok = false;
    const RecordStructure *structure = mState.findStructure(uiid);
    if (structure == nullptr || structure->isRadio())
        return;
    const RecordAddress record = mState.address(structure->index, recordNr);
    ok = finish(*structure, NewRecords::insert(mState.current(), structure->index, record), QStringLiteral("Inserted"));
    if (ok)
        mGrids.add(structure->guide);
}

void RecordOperations::RepeatRecord(const QString &uiid, qint32 recordNr, bool &ok) {
    ok = false;
    const RecordStructure *structure = mState.findStructure(uiid);
    if (structure == nullptr || structure->isRadio())
        return;
    const RecordAddress record = mState.address(structure->index, recordNr);
    ok = finish(*structure, NewRecords::copy(mState.current(), structure->index, record), QStringLiteral("Repeated"));
    if (ok)
        mGrids.add(structure->guide);
}

void RecordOperations::DeleteRecord(const QString &uiid, qint32 recordNr, bool &ok) {
    ok = false;
    const RecordStructure *structure = mState.findStructure(uiid);
    if (structure == nullptr || structure->isRadio())
        return;
    const RecordAddress record = mState.address(structure->index, recordNr);
    ok = finish(*structure, RecordEditor(mState.current()).deleteRecord(structure->index, record),
                QStringLiteral("Deleted"));
    if (ok)
        mGrids.add(structure->guide);
}

void RecordOperations::SortColumn(const QString &uiid, bool ascending) {
    const FieldDefinition *field = mState.findField(uiid);
    if (field == nullptr || mState.dictionary.structure(field->structure).isRadio())
        return;
    const RecordStructure &structure = mState.dictionary.structure(field->structure);
    const FieldReader reader(mState.current());
    const qint32 parent = mState.address(structure.index, 1).parent;
    std::vector<StoredValue> keys;
    for (qint32 number = 1; number <= mState.current().recordCount(structure.index, parent); ++number)
        keys.push_back(reader.value(field->index, {parent, number}).value_or(StoredValue()));
    std::vector<qint32> order(keys.size());
    std::iota(order.begin(), order.end(), 1);
    std::ranges::stable_sort(order, [&](qint32 left, qint32 right) {
        const StoredValue &one = keys[std::size_t(left - 1)];
        const StoredValue &other = keys[std::size_t(right - 1)];
        return ascending ? isBefore(one, other) : isBefore(other, one);
    });
    if (std::ranges::is_sorted(order))
        return;
    const RecordResult result = RecordEditor(mState.current()).reorder(structure.index, parent, order);
    (void)finish(structure, result, QStringLiteral("Sorted"));
}
