#include "record_table.h"

#include <algorithm>

namespace {

template <class Column>
void moveIn(Column &column, qint32 from, qint32 to) {
    const auto begin = column.begin();
    if (from < to)
        std::rotate(begin + from - 1, begin + from, begin + to);
    else
        std::rotate(begin + to - 1, begin + from - 1, begin + from);
}

} // namespace

RecordTable::RecordTable(qint32 numberColumns, qint32 textColumns)
    : mNumbers(std::size_t(numberColumns)), mTexts(std::size_t(textColumns)) {}

StoredValue RecordTable::value(const FieldDefinition &field, qint32 record) const {
    return field.isTextual() ? StoredValue(text(field, record)) : StoredValue(number(field, record));
}

void RecordTable::setValue(const FieldDefinition &field, qint32 record, const StoredValue &value) {
    if (field.kind == FieldKind::Identity)
        mIdentities.changed(number(field, record), value.number(), record);
    if (field.isTextual())
        mTexts[std::size_t(field.column)][std::size_t(record - 1)] = value.text();
    else
        mNumbers[std::size_t(field.column)][std::size_t(record - 1)] = value.number();
}

void RecordTable::insert(qint32 record, const Dictionary &dictionary, const RecordStructure &structure,
                         const RecordRow &row) {
    for (std::size_t i = 0; i < structure.stored.size(); ++i) {
        const FieldDefinition &field = dictionary.field(structure.stored[i]);
        const auto column = std::size_t(field.column);
        if (field.isTextual())
            mTexts[column].insert(mTexts[column].begin() + (record - 1), row[i].text());
        else
            mNumbers[column].insert(mNumbers[column].begin() + (record - 1), row[i].number());
    }
    ++mCount;
    if (record < mCount)
        mIdentities.forget();
    else if (structure.identity.isValid())
        mIdentities.appended(number(dictionary.field(structure.identity), record), record);
}

void RecordTable::remove(qint32 record) {
    for (auto &column : mNumbers)
        column.erase(column.begin() + (record - 1));
    for (auto &column : mTexts)
        column.erase(column.begin() + (record - 1));
    --mCount;
    mIdentities.forget();
}

void RecordTable::move(qint32 from, qint32 to) {
    mIdentities.forget();
    for (auto &column : mNumbers)
        moveIn(column, from, to);
    for (auto &column : mTexts)
        moveIn(column, from, to);
}
