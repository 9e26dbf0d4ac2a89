#include "grid_cells.h"

#include "translation.h"
#include "value_text.h"

#include <algorithm>

namespace {
constexpr qint32 kLanguageOfTheData = 1;

bool holds(const XArrayDB &array, GridCell cell) {
    return cell.row >= 0 && cell.column >= 0 && cell.row <= array.UpperBound(1) && cell.column <= array.UpperBound(2);
}

void writeTo(XArrayDB &array, GridCell cell, const QVariant &value) {
    if (holds(array, cell))
        array.SetValue(cell.row, cell.column, value);
}
} // namespace

bool GridCells::translated() const { return mTranslation.gLanguage > kLanguageOfTheData; }

bool GridCells::has(GridCell cell) const { return holds(mDisplay, cell); }

QVariant GridCells::sourceValue(GridCell cell) const {
    const XArrayDB &array = translated() ? mSource : mDisplay;
    return holds(array, cell) ? array.Value(cell.row, cell.column) : QVariant();
}

QString GridCells::displayText(GridCell cell) const {
    return has(cell) ? ValueText::of(mDisplay.Value(cell.row, cell.column)) : QString();
}

QVariant GridCells::shown(const QVariant &value) const {
    const bool stays = !translated() || ValueText::isUndefined(value);
    return stays ? value : QVariant(mTranslation.NLSStr(ValueText::of(value)));
}

void GridCells::takeOver() {
    if (!translated())
        return;
    mSource = mDisplay;
    for (qint32 row = 0; row <= mDisplay.UpperBound(1); ++row) {
        for (qint32 column = 0; column <= mDisplay.UpperBound(2); ++column)
            mDisplay.SetValue(row, column, shown(mSource.Value(row, column)));
    }
}

void GridCells::write(GridCell cell, const QVariant &value) {
    writeTo(mDisplay, cell, shown(value));
    if (translated())
        writeTo(mSource, cell, value);
}

void GridCells::placeRow(qint32 row, const XArrayDB &cells) {
    for (qint32 column = 0; column <= cells.UpperBound(2); ++column)
        write({row, column}, cells.Value(0, column));
}

void GridCells::modifyRow(qint32 row, const XArrayDB &cells) {
    for (qint32 column = 0; column <= cells.UpperBound(2); ++column) {
        writeTo(mDisplay, {row, column}, shown(cells.Value(0, column)));
        if (translated())
            writeTo(mSource, {0, column}, cells.Value(0, column));
    }
}

qint32 GridCells::appendRow(qint32 lastColumn) {
    const qint32 row = rows();
    const qint32 columns = std::max(mDisplay.UpperBound(2), lastColumn);
    mDisplay.ReDim(row, columns);
    if (translated())
        mSource.ReDim(mSource.UpperBound(1) + 1, columns);
    return row;
}
