#include "grid_values.h"

#include "grid_cells.h"
#include "grid_lists.h"
#include "ifield.h"
#include "string_utilities.h"
#include "tdb_grid.h"
#include "transformer.h"
#include "value_text.h"

#include <algorithm>

const ColumnDetails &GridValues::current() const {
    const bool byRow = !mParts.grid.Design().Dynamic;
    return mParts.columns.details(byRow ? mParts.table.Bookmark().value_or(0) : std::max(mParts.table.Col(), 0));
}

QVariant GridValues::storedValue() const {
    return mParts.grid.Component().GetValue(current().uiid, mParts.grid.Field().Ifield_GetRecordNr());
}

QVariant GridValues::Ifield_GetValue() {
    if (mParts.cells.rows() == 0)
        return ValueText::undefined();
    const ColumnDetails &column = current();
    const qint32 record = mParts.grid.Field().Ifield_GetRecordNr();
    QVariant value = mParts.table.Text();
    if (column.type == ColumnType::kCombo) {
        const XArrayDB items = mParts.lists.comboItems(column.uiid, record);
        value = mParts.lists.comboValue(column.uiid, items, ValueText::of(value));
    } else if (column.type == ColumnType::kIdTracker || column.type == ColumnType::kDerived) {
        value = mParts.cells.sourceValue({record - 1, std::max(mParts.table.Col(), 0)});
        // A choice that is still in the editor counts, so that a save does not miss it.
        if (const auto chosen =
                mParts.table.EditActive() ? mParts.lists.sourceOfName(mParts.table.Text()) : std::nullopt)
            value = *chosen;
    }
    return TrimBlanks(ValueText::of(value));
}

void GridValues::show(const QVariant &value) {
    const auto row = mParts.table.Bookmark();
    if (!row)
        return;
    QVariant shown = value;
    if (current().type == ColumnType::kCombo) {
        const XArrayDB items = mParts.lists.comboItems(current().uiid, mParts.grid.Field().Ifield_GetRecordNr());
        const qint32 position = mParts.lists.comboPosition(current().uiid, value);
        const bool meant = position >= 0 && position <= items.UpperBound(1);
        shown = meant ? items.Value(position, 0) : QVariant(ValueText::undefined());
    }
    mParts.table.finishEdit(); // so that it does not write over the value
    mParts.cells.write({*row, mParts.table.Col()}, shown);
    mParts.table.Refresh();
}

void GridValues::Igrid_SetValue(const QString &UIID, qint32 RecordNr, const QVariant &Value) {
    const qint32 column = mParts.columns.ColumnNumberByUIID(UIID);
    if (column < 0)
        return;
    if (!mParts.grid.Design().Dynamic)
        return showFixedValue(UIID, Value);
    const qint32 row = RecordNr - 1;
    if (row < 0)
        return;
    if (mParts.table.Bookmark() != row)
        mParts.table.SetBookmark(row);
    if (mParts.table.Bookmark() != row || mParts.grid.Terminated())
        return;
    const bool isCombo = mParts.columns.details(column).type == ColumnType::kCombo;
    mParts.cells.write({row, column}, isCombo ? QVariant(comboText(UIID, Value)) : Value);
    mParts.table.Refresh();
}

// A fixed grid has a row a field, and the values in column 1.
void GridValues::showFixedValue(const QString &uiid, const QVariant &value) {
    const qint32 row = mParts.columns.ColumnNumberByUIID(uiid);
    mParts.table.SetBookmark(row);
    mParts.cells.write({row, 1}, value);
    mParts.table.Refresh();
}

QString GridValues::comboText(const QString &uiid, const QVariant &value) const {
    const QStringList texts = GetItemsFromBarString(mParts.grid.Component().GetGridCellRaw(uiid));
    return texts.value(mParts.lists.comboPosition(uiid, value), ValueText::undefined());
}
