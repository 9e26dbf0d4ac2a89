#include "page_writer.h"
#include "text_page_sink.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {
const QString kPage = u"-- page --"_s; // between two pages

// The lines of texts on pages of five lines; a text is a row behind "|", ruled behind "=", else plain.
QStringList printed(const QStringList &texts, int columns) {
    QStringList lines;
    TextPageSink sink({.columns = columns, .lines = 5}, [&lines](const TextPageSink::Pages &pages) {
        for (const QStringList &page : pages)
            lines << (lines.isEmpty() ? page : QStringList(kPage) + page);
    });
    PageWriter writer(sink, u"Courier"_s);
    sink.BeginDocument();
    for (const QString &text : texts) {
        const bool row = text.startsWith(u'|');
        const bool ruled = text.startsWith(u'=');
        writer.PrintLine(row || ruled ? text.mid(1) : text, ruled, row, ruled);
    }
    writer.Finish();
    sink.EndDocument();
    return lines;
}
} // namespace

class tst_PageWriter : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void textsStandWhereTheyShould_data();
    void textsStandWhereTheyShould();
    void columnsGoByWhatStandsInThem_data();
    void columnsGoByWhatStandsInThem();
    void cellStandsByItsAlignment();
};

void tst_PageWriter::textsStandWhereTheyShould_data() {
    QTest::addColumn<QStringList>("texts"); // twenty characters a line
    QTest::addColumn<QStringList>("lines");
    const auto row = [](const char *name, const QStringList &texts, const QStringList &lines) {
        QTest::newRow(name) << texts << lines;
    };
    row("exactly a line", {u"12345 789 1234567890"_s}, {u"12345 789 1234567890"_s});
    row("one more, at the last blank", {u"12345 789 12345678901"_s}, {u"12345 789"_s, u"12345678901"_s});
    row("blank as the line's last", {u"1234567890 12345678 0"_s}, {u"1234567890 12345678"_s, u"0"_s});
    row("word longer than a line", {u"123456789012345678901234"_s}, {u"12345678901234567890"_s, u"1234"_s});
    row("line break", {u"first\r\nsecond"_s}, {u"first"_s, u"second"_s});
    row("line break at the end", {u"title\r\n"_s}, {u"title"_s, QString()});
    row("tabs indent", {u"\t\tName: x"_s}, {u"        Name: x"_s});
    row("tab behind a single cell", {u"12345678901234567890\t"_s}, {u"12345678901234567890"_s});
    row("blank line", {u" "_s}, {QString()});

    // Ten characters a column, nine usable.
    row("row whose second cell takes three lines", {u"|a\tone two three four six"_s, u"next"_s},
        {u"a         one two"_s, u"          three"_s, u"          four six"_s, u"next"_s});
    row("both cells wrap", {u"|one two three\tfour five six"_s, u"next"_s},
        {u"one two   four"_s, u"three     five six"_s, u"next"_s});
    row("three columns", {u"|a\tb\tc"_s}, {u"a      b      c"_s});

    const QStringList five{u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s};
    const QStringList four = five.first(4);
    row("full page", five, five);
    row("one line more", five + QStringList(u"6"_s), five + QStringList({kPage, u"6"_s}));
    row("two full pages", five + five, five + QStringList(kPage) + five);
    row("page break within a text", four + QStringList(u"5\r\n6"_s), five + QStringList({kPage, u"6"_s}));
    row("page break within a wrapped line", four + QStringList(u"1234567890 1234567890"_s),
        four + QStringList({u"1234567890"_s, kPage, u"1234567890"_s}));
    row("page break within a table", four + QStringList({u"|a\tb"_s, u"|c\td"_s}),
        four + QStringList({u"a         b"_s, kPage, u"c         d"_s}));
    row("page break behind a row that wraps below the foot", four + QStringList({u"|one two three\tx"_s, u"next"_s}),
        four + QStringList({u"one two   x"_s, u"three"_s, kPage, u"next"_s}));
    const QString rule(20, u'-');
    row("rules take their lines", {u"=KX4600"_s, u"next"_s}, {rule, u"KX4600"_s, QString(), rule, u"next"_s});
}

void tst_PageWriter::textsStandWhereTheyShould() {
    QFETCH(QStringList, texts);
    QTEST(printed(texts, 20), "lines");
}

void tst_PageWriter::columnsGoByWhatStandsInThem_data() {
    QTest::addColumn<int>("width");
    QTest::addColumn<QStringList>("rows");
    QTest::addColumn<QStringList>("lines");
    QTest::newRow("equal while each word fits")
        << 20 << QStringList({u"|1\ttwo for three"_s}) << QStringList({u"1         two for"_s, u"          three"_s});
    QTest::newRow("a long word widens its column in all rows")
        << 20 << QStringList({u"|1\ttwo"_s, u"|2\t160.000000"_s}) << QStringList({u"1 two"_s, u"2 160.000000"_s});
    QTest::newRow("the rest goes to longer texts") << 24 << QStringList({u"|1\tfrequency\tone two three"_s})
                                                   << QStringList({u"1 frequency one two"_s, u"            three"_s});
    QTest::newRow("every word fits the line exactly") << 20 << QStringList({u"|12\t160.000000\tBusy on"_s})
                                                      << QStringList({u"12 160.000000 Busy"_s, u"              on"_s});
    QTest::newRow("only words without room are cut, the widest first")
        << 20 << QStringList({u"|12\tabcdefghijkl\tmnopqrstuvwx"_s})
        << QStringList({u"12 abcdefgh mnopqrst"_s, u"   ijkl     uvwx"_s});
    QTest::newRow("tables with other columns are laid out apart")
        << 20 << QStringList({u"|1\t160.000000"_s, u"|a\tb\tc"_s})
        << QStringList({u"1 160.000000"_s, u"a      b      c"_s});
}

void tst_PageWriter::columnsGoByWhatStandsInThem() {
    QFETCH(int, width);
    QFETCH(QStringList, rows);
    QTEST(printed(rows, width), "lines");
}

void tst_PageWriter::cellStandsByItsAlignment() {
    const Column column{.left = 10, .width = 4};
    QCOMPARE(column.CellX(1, CellAlignment::Left), 10.0);
    QCOMPARE(column.CellX(1, CellAlignment::Right), 13.0);
    QCOMPARE(column.CellX(1, CellAlignment::Centred), 11.5);
}

QTEST_GUILESS_MAIN(tst_PageWriter)
#include "tst_page_writer.moc"
