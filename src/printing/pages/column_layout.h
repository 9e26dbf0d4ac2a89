#pragma once

#include <vector>

// All lengths in centimetres.

enum class CellAlignment { Centred = 0, Left = 1, Right = 2 };

// A column of a table, with the gap behind it.
struct Column {
    double left = 0;
    double width = 0;

    // Where a text of this width begins.
    [[nodiscard]] constexpr double CellX(double textWidth, CellAlignment alignment) const {
        if (alignment == CellAlignment::Left)
            return left;
        const double room = width - textWidth;
        return alignment == CellAlignment::Centred ? left + room / 2 : left + room;
    }
};

// What stands in a column.
struct ColumnNeed {
    double word = 0; // its widest word
    double text = 0; // its widest cell
};

// The columns of a table on lines that begin at left; the gap is as wide as a character. They are equally wide as long
// as each word fits its column. Else each is as wide as its widest word, and what is left goes to longer texts. Where
// even the words have no room together, the columns with the widest share what the others leave.
[[nodiscard]] std::vector<Column> layOutColumns(const std::vector<ColumnNeed> &needs, double left, double lineWidth,
                                                double gap);
