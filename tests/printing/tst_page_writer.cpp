#include "page_writer.h"
#include "text_page_sink.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {
// Twenty characters a line and five lines a page.
class SmallPages {
  public:
    SmallPages() { mSink.BeginDocument(); }
    void plain(const QString &text) { mWriter.PrintLine(text, false, false, false); }
    void row(const QString &text) { mWriter.PrintLine(text, false, true, false); }
    void ruled(const QString &text) { mWriter.PrintLine(text, true, false, true); }
    [[nodiscard]] const PageWriter &writer() const { return mWriter; }
    // A line an entry; "-- page --" between two pages.
    [[nodiscard]] QStringList lines() const {
        QStringList all;
        for (const QStringList &page : mPages)
            all << (all.isEmpty() ? page : QStringList(u"-- page --"_s) + page);
        return all;
    }

  private:
    std::vector<QStringList> mPages;
    TextPageSink mSink{{.columns = 20, .lines = 5}, mPages};
    PageWriter mWriter{mSink, u"Courier"_s};
};

const QString kPage = u"-- page --"_s;
} // namespace

class tst_PageWriter : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void plainLineWraps_data();
    void plainLineWraps();
    void rowWraps_data();
    void rowWraps();
    void pageBreaks_data();
    void pageBreaks();
    void rulesTakeTheirLines();
    void cellStandsByItsAlignment();
    void deviatingFontScalesTheLine();
};

void tst_PageWriter::plainLineWraps_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("lines");
    QTest::newRow("exactly a line") << u"12345 789 1234567890"_s << QStringList(u"12345 789 1234567890"_s);
    QTest::newRow("one more, at the last blank")
        << u"12345 789 12345678901"_s << QStringList({u"12345 789"_s, u"12345678901"_s});
    QTest::newRow("blank as the line's last")
        << u"1234567890 12345678 0"_s << QStringList({u"1234567890 12345678"_s, u"0"_s});
    QTest::newRow("word longer than a line")
        << u"123456789012345678901234"_s << QStringList({u"12345678901234567890"_s, u"1234"_s});
    QTest::newRow("three lines") << u"1234567890 234567890 234567890 2345"_s
                                 << QStringList({u"1234567890"_s, u"234567890 234567890"_s, u"2345"_s});
    QTest::newRow("line break") << u"first\r\nsecond"_s << QStringList({u"first"_s, u"second"_s});
    QTest::newRow("line break at the end") << u"title\r\n"_s << QStringList({u"title"_s, QString()});
    QTest::newRow("tabs indent") << u"\t\tName: x"_s << QStringList(u"        Name: x"_s);
    QTest::newRow("tab behind a single cell") << u"12345678901234567890\t"_s << QStringList(u"12345678901234567890"_s);
    QTest::newRow("blank line") << u" "_s << QStringList(QString());
}

void tst_PageWriter::plainLineWraps() {
    QFETCH(QString, text);
    SmallPages pages;
    QCOMPARE(pages.writer().CharactersPerLine(), 20);
    pages.plain(text);
    QTEST(pages.lines(), "lines");
}

void tst_PageWriter::rowWraps_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("lines"); // of the row and the next
    QTest::newRow("two cells") << u"one\ttwo"_s << QStringList({u"one       two"_s, u"next"_s});
    // Ten characters a column, nine usable.
    QTest::newRow("second wraps to three lines")
        << u"a\tone two three four six"_s
        << QStringList({u"a         one two"_s, u"          three"_s, u"          four six"_s, u"next"_s});
    QTest::newRow("cut hard") << u"abcdefghijkl\tx"_s << QStringList({u"abcdefghi x"_s, u"jkl"_s, u"next"_s});
    QTest::newRow("both wrap") << u"one two three\tfour five six"_s
                               << QStringList({u"one two   four"_s, u"three     five six"_s, u"next"_s});
    QTest::newRow("three columns") << u"a\tb\tc"_s << QStringList({u"a      b      c"_s, u"next"_s});
}

void tst_PageWriter::rowWraps() {
    QFETCH(QString, text);
    SmallPages pages;
    pages.row(text);
    pages.plain(u"next"_s);
    QTEST(pages.lines(), "lines");
}

void tst_PageWriter::pageBreaks_data() {
    QTest::addColumn<QStringList>("texts"); // "|" before a row
    QTest::addColumn<QStringList>("lines");
    const QStringList five{u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s};
    const QStringList four = five.first(4);
    QTest::newRow("full page") << five << five;
    QTest::newRow("one line more") << five + QStringList(u"6"_s) << five + QStringList({kPage, u"6"_s});
    QTest::newRow("two full pages") << five + five << five + QStringList(kPage) + five;
    QTest::newRow("within a text") << four + QStringList(u"5\r\n6"_s) << five + QStringList({kPage, u"6"_s});
    QTest::newRow("within a wrapped line") << four + QStringList(u"1234567890 1234567890"_s)
                                           << four + QStringList({u"1234567890"_s, kPage, u"1234567890"_s});
    QTest::newRow("behind a row that wraps below the foot")
        << four + QStringList({u"|one two three\tx"_s, u"next"_s})
        << four + QStringList({u"one two   x"_s, u"three"_s, kPage, u"next"_s});
}

void tst_PageWriter::pageBreaks() {
    QFETCH(QStringList, texts);
    SmallPages pages;
    for (const QString &text : texts) {
        if (text.startsWith(u'|'))
            pages.row(text.mid(1));
        else
            pages.plain(text);
    }
    QTEST(pages.lines(), "lines");
}

void tst_PageWriter::rulesTakeTheirLines() {
    SmallPages pages;
    pages.ruled(u"KX4600"_s);
    pages.plain(u"next"_s);
    const QString rule(20, u'-');
    QCOMPARE(pages.lines(), QStringList({rule, u"KX4600"_s, QString(), rule, u"next"_s}));
}

void tst_PageWriter::cellStandsByItsAlignment() {
    const ColumnLayout layout{.leftMargin = 2, .columnWidth = 4};
    QCOMPARE(layout.CellX(3, 1, CellAlignment::Left), 10.0);
    QCOMPARE(layout.CellX(3, 1, CellAlignment::Right), 13.0);
    QCOMPARE(layout.CellX(3, 1, CellAlignment::Centred), 11.5);
}

void tst_PageWriter::deviatingFontScalesTheLine() {
    // The text sink has the reference font: then a line is as high and a character as wide as the font's "W".
    std::vector<QStringList> pages;
    for (const int columns : {1, 2, 78, 132}) {
        TextPageSink sink({.columns = columns, .lines = 3}, pages);
        QCOMPARE(PageWriter(sink, u"Courier"_s).CharactersPerLine(), columns);
    }
}

QTEST_GUILESS_MAIN(tst_PageWriter)
#include "tst_page_writer.moc"
