#include "list_queries.h"

#include "xarray_db.h"

#include <algorithm>

namespace {
// A form fills its lists before its navigator has told them their record.
constexpr qint32 kShownRecord = 0;

// ID trackers get the text as ID too: what is shown and what is handed back are the same.
void fill(const std::vector<FieldItem> &items, bool withIds, XArrayDB &array) {
    array.Clear();
    array.ReDim(qint32(items.size()) - 1, withIds ? 1 : 0);
    for (qint32 row = 0; row < qint32(items.size()); ++row) {
        array.SetValue(row, 0, items[std::size_t(row)].text);
        if (withIds)
            array.SetValue(row, 1, items[std::size_t(row)].text);
    }
}
} // namespace

std::vector<FieldItem> ListQueries::itemsOf(const FieldDefinition &field, qint32 recordNr) {
    const qint32 shown = std::max(mState.positions().position(field.structure), 1);
    const RecordAddress record = mState.address(field.structure, recordNr == kShownRecord ? shown : recordNr);
    return ItemLists(mState.current()).items(field.index, record);
}

QString ListQueries::GetIsComboIndex(const QString &uiid) {
    const FieldDefinition *field = mState.findField(uiid);
    if (field == nullptr || field->kind != FieldKind::List)
        return {};
    QStringList values;
    bool placesServe = true;
    for (const FieldItem &item : itemsOf(*field, kShownRecord)) {
        placesServe = placesServe && item.value == qint32(values.size());
        values.append(QString::number(item.value));
    }
    return placesServe ? QString() : values.join(u'|');
}

QString ListQueries::GetGridCellRaw(const QString &uiid) {
    const FieldDefinition *field = mState.findField(uiid);
    if (field == nullptr || field->kind != FieldKind::List)
        return {};
    QStringList texts;
    for (const FieldItem &item : itemsOf(*field, kShownRecord))
        texts.append(item.text);
    return texts.join(u'|');
}

bool ListQueries::GetComboItems(const QString &uiid, qint32 recordNr, XArrayDB &array, qint32 &scope) {
    constexpr qint32 kByRecord = 2;
    const FieldDefinition *field = mState.findField(uiid);
    if (field == nullptr || (field->kind != FieldKind::List && !field->hasIdItems()))
        return false;
    fill(itemsOf(*field, recordNr), field->hasIdItems(), array);
    scope = ItemLists(mState.current()).differsByRecord(field->index) ? kByRecord : 0;
    return true;
}

void ListQueries::GetIDItems(const QString &uiid, qint32 recordNr, XArrayDB &array) {
    const FieldDefinition *field = mState.findField(uiid);
    if (field != nullptr)
        fill(itemsOf(*field, recordNr), true, array);
}

void ListQueries::GetGridData(const QString &uiidList, XArrayDB &array, qint32 recordNr, bool &ok) {
    const QStringList uiids = uiidList.split(u'|');
    const FieldDefinition *first = mState.findField(uiids.first());
    const qint32 count = first == nullptr ? 0 : mFields.GetNumberOfRecords(first->id);
    ok = first != nullptr && recordNr >= 0 && recordNr <= count;
    if (!ok)
        return;
    const qint32 from = recordNr == 0 ? 1 : recordNr;
    const qint32 to = recordNr == 0 ? count : recordNr;
    array.Clear();
    array.ReDim(to - from, qint32(uiids.size()) - 1);
    for (qint32 column = 0; column < qint32(uiids.size()); ++column) {
        const QString &uiid = uiids[column];
        const FieldDefinition *field = mState.dictionary.find(uiid);
        for (qint32 record = from; record <= to; ++record)
            array.SetValue(record - from, column,
                           field == nullptr ? mFields.GetValue(uiid, record) : mFields.valueOf(*field, record));
    }
}
