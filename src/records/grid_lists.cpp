#include "grid_lists.h"

#include "combo_column.h"
#include "combo_translation.h"
#include "transformer.h"
#include "translation.h"
#include "value_text.h"

namespace {
constexpr qint32 kDiffersByRecord = 2;

QString textOf(const XArrayDB &items, qint32 row) { return ValueText::of(items.Value(row, 0)); }
} // namespace

void GridLists::askForComboItems(const QString &uiid, qint32 record, XArrayDB &items, qint32 &scope) const {
    items.Clear();
    mGrid.Raise(FieldEvent(QStringLiteral("GetComboItems"), in(uiid), in(record), out(items), out(scope)));
}

XArrayDB GridLists::comboItems(const QString &uiid, qint32 record) const {
    XArrayDB items;
    qint32 scope = kDiffersByRecord;
    askForComboItems(uiid, record, items, scope);
    return items;
}

XArrayDB GridLists::idItems(const QString &uiid, qint32 record, const QString &value) {
    XArrayDB items;
    mGrid.Raise(FieldEvent(QStringLiteral("GetIDItems"), in(uiid), in(record), out(items)));
    if (find(items, value) < 0) {
        if (items.UpperBound(2) < 0)
            items.ReDim(-1, 0);
        items.InsertRow(0);
        items.SetValue(0, 0, value);
    }
    mTranslatedNames.clear();
    for (qint32 row = 0; row <= items.UpperBound(1); ++row)
        mTranslatedNames.insert(mServices.translation.NLSStr(textOf(items, row)), textOf(items, row));
    return items;
}

std::optional<QString> GridLists::sourceOfName(const QString &translated) const {
    const auto found = mTranslatedNames.constFind(translated);
    return found == mTranslatedNames.constEnd() ? std::nullopt : std::optional(*found);
}

qint32 GridLists::find(const XArrayDB &items, const QString &text) {
    for (qint32 row = 0; row <= items.UpperBound(1); ++row) {
        if (textOf(items, row) == text)
            return row;
    }
    return -1;
}

QStringList GridLists::shownTexts(const XArrayDB &items) const {
    QStringList texts;
    for (qint32 row = 0; row <= items.UpperBound(1); ++row)
        texts << textOf(items, row);
    mServices.translation.NLSArray(texts);
    return texts;
}

QVariant GridLists::comboValue(const QString &uiid, const XArrayDB &items, const QString &text) const {
    qint32 row = find(items, text);
    if (row < 0)
        row = qint32(shownTexts(items).indexOf(text));
    if (row < 0)
        return QString();
    const QString map = mGrid.Component().GetIsComboIndex(uiid);
    return map.isEmpty() ? row : ComboTransFromUI(map, row);
}

qint32 GridLists::comboPosition(const QString &uiid, const QVariant &value) const {
    const QString map = mGrid.Component().GetIsComboIndex(uiid);
    return map.isEmpty() ? ValueText::toIntegerOr(value, -1) : ComboTransToUI(map, ValueText::of(value));
}

XArrayDB GridLists::convertedItems(qint32 column) const {
    const auto found = mConverted.find(column);
    return found == mConverted.end() ? XArrayDB() : found->second;
}

void GridLists::ConvertEntriesToUI(XArrayDB &array, const GridColumns &columns) {
    for (qint32 column = 0; column <= array.UpperBound(2) && !mGrid.Terminated(); ++column) {
        if (columns.details(column).type == ColumnType::kCombo)
            convertColumn(array, column, columns.details(column).uiid);
    }
}

void GridLists::convertColumn(XArrayDB &array, qint32 column, const QString &uiid) {
    if (array.UpperBound(1) < 0)
        return;
    mConverted[column] = comboColumnToUI(
        array, column, mGrid.Component().GetIsComboIndex(uiid),
        [&](qint32 record, XArrayDB &items, qint32 &scope) { askForComboItems(uiid, record, items, scope); });
}
