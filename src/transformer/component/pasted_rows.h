#pragma once

#include <QString>
#include <QStringList>

#include <vector>

// Tab-separated rows of text and the columns of a grid that their cells are meant for.
struct PastedRows {
    // What the head of a grid's column says; "" for a column that is left off.
    struct Head {
        QString english;
        QString translated;
    };

    std::vector<QStringList> rows;  // without a line of heads
    std::vector<qsizetype> columns; // by cell: the grid's column, from 0; -1 behind the last one
    qint32 firstLine = 1;           // of the text: that of the first row
    bool isBlock = false;           // no heads, and narrower than the grid: fills the columns from the focused one on

    // A first line counts as heads if each of its cells is a head. focused: column from which a block is filled.
    [[nodiscard]] static PastedRows read(const QString &text, const std::vector<Head> &heads, qsizetype focused);
};
