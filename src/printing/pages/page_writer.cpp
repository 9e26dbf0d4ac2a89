#include "page_writer.h"

#include "page_sink.h"
#include "word_wrap.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

namespace {
// Height and width of "W" in the reference font; a driver whose font deviates scales the line by it.
constexpr double kReferenceHeight = 0.3563059;
constexpr double kReferenceWidth = 0.2116669;
constexpr double kMargin = 2.0;
constexpr double kTolerance = 0.01;
constexpr double kRounding = 1e-6; // centimetres; a cell is not cut for less
const QString kLineBreak = QStringLiteral("\r\n");
const QString kIndent = QStringLiteral("    "); // what a tab takes in a plain line

// Tabs at the end of a line mark a single table cell and print nothing.
QString withoutTabs(QString text) {
    while (text.endsWith(u'\t'))
        text.chop(1);
    return text.replace(u'\t', kIndent);
}
} // namespace

PageWriter::PageWriter(PageSink &sink, const QString &fontName) : mSink(sink), mFontName(fontName) {
    mSink.SetFont(mFontName, false);
    const double height = mSink.TextHeight();
    const double width = mSink.TextWidth(QStringLiteral("W"));
    mIsFixedPitch = width - mSink.TextWidth(QStringLiteral("i")) < width * kTolerance;
    mLineHeight = height * height / kReferenceHeight;
    mCharacterWidth = mIsFixedPitch ? width * width / kReferenceWidth : mSink.TextWidth(QStringLiteral("0"));
    const PageFrame frame = mSink.Frame();
    mTopMargin = frame.offsetY + kMargin;
    mLeftMargin = frame.offsetX + kMargin;
    mPageLimit = frame.height - 2 * mTopMargin;
    mTextWidth = frame.width - 2 * mLeftMargin;
    mCurrentY = mTopMargin;
}

void PageWriter::PrintLine(const QString &Text, bool Bold, bool Columns, bool Ruled) {
    if (!Columns || Ruled)
        Finish();
    servePageBreak();
    if (Ruled) {
        printRule();
        mCurrentY += mLineHeight;
    }
    for (const QString &piece : Text.split(kLineBreak)) {
        if (Columns)
            addRow({piece.split(u'\t'), Bold});
        else
            printWrapped(withoutTabs(piece), Bold);
    }
    if (!Ruled)
        return;
    Finish();
    mCurrentY += mLineHeight / 2;
    printRule();
    mCurrentY += mLineHeight;
}

// Also within a text of several lines, whose rest goes to the new page.
void PageWriter::servePageBreak() {
    if (std::exchange(mPageBreakPending, false))
        mSink.NewPage();
}

void PageWriter::printRule() { mSink.PrintRule(mLeftMargin, mLeftMargin + mTextWidth, mCurrentY); }

void PageWriter::printWrapped(const QString &text, bool bold) {
    mSink.SetFont(mFontName, bold);
    QString rest = text;
    for (qsizetype fits = fitting(rest, mTextWidth); rest.size() > fits; fits = fitting(rest, mTextWidth)) {
        const qsizetype cut = WrapPosition(rest, fits);
        PrintALine(rest.first(cut), bold);
        rest.remove(0, cut);
    }
    PrintALine(rest, bold);
}

int PageWriter::charactersIn(double width) const { return std::max(1, int(std::floor(width / mCharacterWidth))); }

// Characters of one width are counted. Others are measured: a count by the widest of them would leave half of each line
// empty and cut most words of a table.
qsizetype PageWriter::fitting(const QString &text, double width) const {
    if (mIsFixedPitch)
        return charactersIn(width);
    if (mSink.TextWidth(text) <= width)
        return text.size();
    qsizetype fits = 1;
    for (qsizetype tooLong = text.size(); tooLong - fits > 1;) {
        const qsizetype middle = std::midpoint(fits, tooLong);
        (mSink.TextWidth(text.first(middle)) <= width ? fits : tooLong) = middle;
    }
    return fits;
}

void PageWriter::PrintALine(const QString &text, bool bold) {
    servePageBreak();
    mSink.SetFont(mFontName, bold);
    mSink.PrintText(mLeftMargin, mCurrentY, text);
    advance(mLineHeight);
}

void PageWriter::addRow(const Row &row) {
    if (!mHeldBack.empty() && mHeldBack.front().cells.size() != row.cells.size())
        Finish();
    mHeldBack.push_back(row);
}

void PageWriter::Finish() {
    const std::vector<Row> rows = std::exchange(mHeldBack, {});
    if (rows.empty())
        return;
    const std::vector<Column> columns = layOutColumns(needsOf(rows), mLeftMargin, mTextWidth, mCharacterWidth);
    for (const Row &row : rows)
        PrintColumns(row, columns, CellAlignment::Left);
}

std::vector<ColumnNeed> PageWriter::needsOf(const std::vector<Row> &rows) {
    std::vector<ColumnNeed> needs(std::size_t(rows.front().cells.size()));
    for (const Row &row : rows) {
        mSink.SetFont(mFontName, row.bold);
        for (std::size_t column = 0; column < needs.size(); ++column) {
            ColumnNeed &need = needs[column];
            const QString text = row.cells.at(qsizetype(column)).trimmed();
            need.text = std::max(need.text, mSink.TextWidth(text));
            for (const QString &word : text.split(u' '))
                need.word = std::max(need.word, mSink.TextWidth(word));
        }
    }
    return needs;
}

void PageWriter::PrintColumns(const Row &row, const std::vector<Column> &columns, CellAlignment alignment) {
    servePageBreak();
    mSink.SetFont(mFontName, row.bold);
    int wraps = 0;
    for (std::size_t cell = 0; cell < columns.size(); ++cell)
        wraps = std::max(wraps, printCell(row.cells.at(qsizetype(cell)), columns[cell], alignment));
    advance(mLineHeight * (1 + wraps));
}

int PageWriter::printCell(QString cell, const Column &column, CellAlignment alignment) {
    const double usableWidth = column.width - mCharacterWidth + kRounding;
    const auto print = [&](const QString &part, int wrap) {
        mSink.PrintText(column.CellX(mSink.TextWidth(part), alignment), mCurrentY + mLineHeight * wrap, part);
    };
    int wraps = 0;
    for (qsizetype fits = fitting(cell, usableWidth); cell.size() > fits && mSink.TextWidth(cell) > usableWidth;
         fits = fitting(cell, usableWidth)) {
        const qsizetype cut = WrapPosition(cell, fits);
        const QString part = cell.first(cut);
        if (!part.trimmed().isEmpty()) // the blanks in front of a head take no line
            print(part, wraps++);
        cell.remove(0, cut);
    }
    print(cell, wraps);
    return wraps;
}

void PageWriter::advance(double height) {
    mCurrentY += height;
    if (mCurrentY + mLineHeight < mPageLimit)
        return;
    mCurrentY = mTopMargin;
    mPageBreakPending = true;
}
