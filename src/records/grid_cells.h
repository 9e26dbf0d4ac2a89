#pragma once

#include "grid_surface.h"

#include <QVariant>

class Translation;

// The rows of a grid: as shown, and, in another language than the one the data stands in, the same rows untranslated.
class GridCells {
  public:
    explicit GridCells(const Translation &translation) : mTranslation(translation) {}

    [[nodiscard]] bool translated() const;
    [[nodiscard]] XArrayDB &DisplayArray() { return mDisplay; }
    [[nodiscard]] const XArrayDB &DisplayArray() const { return mDisplay; }
    [[nodiscard]] XArrayDB &SourceArray() { return mSource; }

    [[nodiscard]] qint32 rows() const { return mDisplay.UpperBound(1) + 1; }
    [[nodiscard]] bool has(GridCell cell) const;
    // The cell as the component knows it; Empty for one that does not exist.
    [[nodiscard]] QVariant sourceValue(GridCell cell) const;
    [[nodiscard]] QString displayText(GridCell cell) const;

    // After the shown rows were filled with source values: keeps those and translates what is shown.
    void takeOver();
    // Writes a source value and its translation. A cell that does not exist is passed over.
    void write(GridCell cell, const QVariant &value);
    // Row 0 of the array as the row's cells, in both.
    void placeRow(qint32 row, const XArrayDB &cells);
    // The row's shown cells at row, their source values in row 0.
    void modifyRow(qint32 row, const XArrayDB &cells);
    // A blank row at the end, in both; its number. lastColumn: of an array that is without columns still.
    qint32 appendRow(qint32 lastColumn);

  private:
    [[nodiscard]] QVariant shown(const QVariant &value) const;

    const Translation &mTranslation;
    XArrayDB mDisplay;
    XArrayDB mSource; // empty while nothing is translated
};
