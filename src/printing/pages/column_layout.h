#pragma once

// Where the cells of a table row stand. All lengths in centimetres.
enum class CellAlignment { Centred = 0, Left = 1, Right = 2 };

struct ColumnLayout {
    double leftMargin = 0;
    double columnWidth = 0;

    // Columns count from 1.
    [[nodiscard]] constexpr double CellX(int column, double textWidth, CellAlignment alignment) const {
        const double base = columnWidth * (column - 1) + leftMargin;
        if (alignment == CellAlignment::Left)
            return base;
        const double room = columnWidth - textWidth;
        return alignment == CellAlignment::Centred ? base + room / 2 : base + room;
    }
};
