#pragma once

#include "column_layout.h"

#include <QString>
#include <QStringList>

class PageSink;

// Puts lines of text on pages: a small line printer, made for a fixed-pitch font, with word wrap, tables, rules, and a
// page break that waits for the next line, so that a full last page is not followed by an empty one. The rows of a
// table are held back until all of them are there: their columns go by what stands in them. Lengths in centimetres.
class PageWriter {
  public:
    // Measures the page and the font. The sink outlives the writer. Raises what the sink raises.
    PageWriter(PageSink &sink, const QString &fontName);

    // Both raise what the sink raises; nothing can be printed after that.
    void PrintLine(const QString &Text, bool Bold, bool Columns, bool Ruled);
    // Prints the rows that are still held back.
    void Finish();

    // By the character's width, which for a font of varying widths is that of a digit.
    [[nodiscard]] int CharactersPerLine() const { return charactersIn(mTextWidth); }
    [[nodiscard]] const QString &FontName() const { return mFontName; }

  private:
    struct Row {
        QStringList cells;
        bool bold = false;
    };

    void servePageBreak();
    void printRule();
    void printWrapped(const QString &text, bool bold);
    void PrintALine(const QString &text, bool bold);
    // Rows of one table have the same number of cells.
    void addRow(const Row &row);
    [[nodiscard]] std::vector<ColumnNeed> needsOf(const std::vector<Row> &rows);
    void PrintColumns(const Row &row, const std::vector<Column> &columns, CellAlignment alignment);
    // The number of lines that the cell takes beyond the first.
    [[nodiscard]] int printCell(QString cell, const Column &column, CellAlignment alignment);
    void advance(double height);
    [[nodiscard]] int charactersIn(double width) const; // at least 1
    // How many of the text's characters have room in the width, at least 1; more than there are where all have.
    [[nodiscard]] qsizetype fitting(const QString &text, double width) const;

    PageSink &mSink;
    bool mIsFixedPitch = true;
    double mLineHeight = 0;
    double mCharacterWidth = 0;
    double mCurrentY = 0; // where the next line goes
    double mTopMargin = 0;
    double mLeftMargin = 0;
    double mPageLimit = 0; // a line ends above it
    double mTextWidth = 0;
    QString mFontName;
    bool mPageBreakPending = false;
    std::vector<Row> mHeldBack;
};
