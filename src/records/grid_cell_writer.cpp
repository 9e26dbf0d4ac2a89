#include "grid_cell_writer.h"

#include "grid_surface.h"
#include "ifield.h"
#include "value_text.h"

namespace {
constexpr qint32 kListByRecord = 2;

// The row of a list whose text is exactly this one; -1 for none.
qint32 find(const XArrayDB &items, const QString &text) {
    for (qint32 row = 0; row <= items.UpperBound(1); ++row) {
        if (ValueText::of(items.Value(row, 0)) == text)
            return row;
    }
    return -1;
}
} // namespace

bool GridCellWriter::takesText(const GridSurface &grid, qint32 column) {
    if (column < 0 || column >= grid.ColumnCount())
        return false;
    const GridColumnFacts facts = grid.ColumnAt(column);
    return !facts.locked && facts.enabled;
}

void GridCellWriter::SetCellValue(const QString &text) {
    const qint32 column = mGrid.Table().Col();
    if (!takesText(mGrid, column))
        return;
    const ColumnType type = mGrid.ColumnAt(column).type;
    if (type == ColumnType::kCombo || type == ColumnType::kIdTracker)
        chooseItem(column, text);
    else
        mGrid.Field().Ifield_SetValue(text, false);
}

void GridCellWriter::chooseItem(qint32 column, const QString &text) {
    XArrayDB items;
    qint32 scope = kListByRecord;
    const qint32 record = mGrid.Field().Ifield_GetRecordNr();
    mGrid.Raise(FieldEvent(QStringLiteral("GetComboItems"), in(mGrid.ColumnAt(column).uiid), in(record), out(items),
                           out(scope)));
    if (mGrid.Terminated())
        return;
    const qint32 item = find(items, text);
    if (item < 0)
        return;
    mGrid.PickDropdownRow(items, item);
    writeItem(column, text);
}

void GridCellWriter::writeItem(qint32 column, const QString &text) {
    const auto row = mGrid.Table().Bookmark();
    if (!row)
        return;
    mGrid.DisplayArray().SetValue(*row, column, text);
    mGrid.DropDownClose();
    if (mGrid.Terminated())
        return;
    if (const auto source = mGrid.Translated() ? mGrid.SourceOfName(text) : std::nullopt)
        mGrid.SourceArray().SetValue(*row, column, *source);
    mGrid.Table().Refresh();
}
