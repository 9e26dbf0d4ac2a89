#include "tool_run.h"

#include <QFile>
#include <QTest>

using namespace ToolRun;

namespace {
const QString kChannels = QStringLiteral(" --record ChannelID_q7r ");
}

// Tables of records: what comes out as CSV goes in again, and nothing goes in by halves.
class tst_ctl_tables : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup() { mFolder.reset(); }
    void exportedRecordsMakeTheSameRecordsElsewhere_data();
    void exportedRecordsMakeTheSameRecordsElsewhere();
    void quotedCellsKeepTheirText();
    void columnsAreFoundByLabelAndMissingOnesKeepTheirValues();
    void dependentColumnsGoInInAnyOrder();
    void numbersMayChangePlaces();
    void refusedCellsAreListedAndNothingIsImported();
    void partialLeavesOutWholeRows();
    void brokenTableIsRefused_data();
    void brokenTableIsRefused();

  private:
    std::unique_ptr<ToolFolder> mFolder;
};

void tst_ctl_tables::init() {
    mFolder = std::make_unique<ToolFolder>();
    QCOMPARE(run(QStringLiteral("new --tier Advanced -o a.k4p")).code, 0);
    QCOMPARE(run(QStringLiteral("new --tier Advanced -o b.k4p")).code, 0);
}

void tst_ctl_tables::exportedRecordsMakeTheSameRecordsElsewhere_data() {
    QTest::addColumn<QStringList>("edits"); // beside two more channels
    QTest::addColumn<QString>("guide");
    QTest::addColumn<QString>("firstCells"); // of the last row
    QTest::newRow("records") << QStringList{QStringLiteral("set a.k4p RxFreq_q7r(3)=150.5 TxPower_q7r(2)=Low")}
                             << "ChannelID_q7r"
                             << "3,150.500000";
    QTest::newRow("children") << QStringList{QStringLiteral("add a.k4p GroupID_q7r"),
                                             QStringLiteral("add a.k4p GroupID_q7r"),
                                             QStringLiteral("add a.k4p FilteredScanGroupChannelMemberID(2.1)"),
                                             QStringLiteral("set a.k4p FilteredScanGroupChannelMemberID(2.1)=3")}
                              << "FilteredScanGroupChannelMemberID"
                              << "2,3";
    QTest::newRow("fixed rows") << QStringList{QStringLiteral("set a.k4p EnabledFlag(14)=#0")}
                                << "AudibleIndicators_q7r"
                                << "Emergency entered,No";
    QTest::newRow("flat table") << QStringList{QStringLiteral("add a.k4p SignalSystemId_q7r"),
                                               QStringLiteral("set a.k4p FreeFormBurstB(1.7)=123")}
                                << "FreeFormSequence"
                                << "123,None";
}

void tst_ctl_tables::exportedRecordsMakeTheSameRecordsElsewhere() {
    QFETCH(QStringList, edits);
    QFETCH(QString, guide);
    QFETCH(QString, firstCells);
    for (const char *file : {"a.k4p", "b.k4p"})
        for (int i = 0; i < 2; ++i)
            QCOMPARE(run({QStringLiteral("add"), QString::fromLatin1(file), QStringLiteral("ChannelID_q7r")}).code, 0);
    for (const QString &edit : std::as_const(edits)) {
        const Outcome edited = run(edit);
        QVERIFY2(edited.code == 0, qPrintable(edited.err));
        // The other file gets the parents, not the values.
        if (edit.startsWith(QStringLiteral("add")) && !edit.contains(QStringLiteral(".1)")))
            QCOMPARE(run(QString(edit).replace(QStringLiteral("a.k4p"), QStringLiteral("b.k4p"))).code, 0);
    }
    const Outcome table = run(QStringLiteral("export a.k4p --record ") + guide);
    QCOMPARE(table.code, 0);
    const QStringList lines = table.out.split(QStringLiteral("\r\n"), Qt::SkipEmptyParts);
    QVERIFY2(lines.last().startsWith(firstCells), qPrintable(lines.last()));
    QCOMPARE(run(QStringLiteral("diff a.k4p b.k4p")).code, 1);
    writeFile(QStringLiteral("t.csv"), table.out.toUtf8());
    const Outcome imported = run(QStringLiteral("import b.k4p --record %1 t.csv").arg(guide));
    QVERIFY2(imported.code == 0, qPrintable(imported.err));
    const Outcome difference = run(QStringLiteral("diff a.k4p b.k4p"));
    QVERIFY2(difference.code == 0, qPrintable(difference.out));
}

void tst_ctl_tables::quotedCellsKeepTheirText() {
    writeFile(QStringLiteral("t.csv"),
              "\xEF\xBB\xBF\"DigitalIOPin\",\"DigitalIOLabel\"\nAUX 1 (input),\"A \"\"b\"\",c\"\n");
    const Outcome imported = run(QStringLiteral("import a.k4p --record DigitalIOPin t.csv"));
    QVERIFY2(imported.code == 0, qPrintable(imported.err));
    QCOMPARE(run(QStringLiteral("get a.k4p DigitalIOLabel(1)")).out, QStringLiteral("A \"b\",c\n"));
    QVERIFY(
        run(QStringLiteral("export a.k4p --record DigitalIOPin")).out.contains(QStringLiteral("\"A \"\"b\"\",c\"")));
}

void tst_ctl_tables::columnsAreFoundByLabelAndMissingOnesKeepTheirValues() {
    QCOMPARE(run(QStringLiteral("set a.k4p TxPower_q7r(1)=Low")).code, 0);
    writeFile(QStringLiteral("t.csv"), "Rx Frequency\r\n150\r\n");
    QCOMPARE(run(QStringLiteral("import a.k4p") + kChannels + QStringLiteral("t.csv -o c.k4p")).code, 0);
    QCOMPARE(run(QStringLiteral("get c.k4p RxFreq_q7r(1) TxPower_q7r(1)")).out, QStringLiteral("150.000000\nLow\n"));
    QCOMPARE(run(QStringLiteral("get a.k4p RxFreq_q7r(1)")).out, QStringLiteral("160.000000\n"));
}

// An entered Rx frequency copies itself to an equal Tx frequency: the table's own value must stand in the end.
void tst_ctl_tables::dependentColumnsGoInInAnyOrder() {
    writeFile(QStringLiteral("t.csv"), "TxFreq_q7r,RxFreq_q7r\r\n160,150\r\n");
    QCOMPARE(run(QStringLiteral("import a.k4p") + kChannels + QStringLiteral("t.csv")).code, 0);
    QCOMPARE(run(QStringLiteral("get a.k4p RxFreq_q7r(1) TxFreq_q7r(1)")).out,
             QStringLiteral("150.000000\n160.000000\n"));
}

void tst_ctl_tables::numbersMayChangePlaces() {
    writeFile(QStringLiteral("t.csv"), "ChannelID_q7r\r\n1\r\n2\r\n3\r\n");
    QCOMPARE(run(QStringLiteral("import a.k4p") + kChannels + QStringLiteral("t.csv")).code, 0);
    writeFile(QStringLiteral("t.csv"), "ChannelID_q7r\r\n2\r\n3\r\n1\r\n");
    const Outcome imported = run(QStringLiteral("import a.k4p") + kChannels + QStringLiteral("t.csv"));
    QVERIFY2(imported.code == 0, qPrintable(imported.err));
    QCOMPARE(run(QStringLiteral("get a.k4p ChannelID_q7r(1) ChannelID_q7r(2) ChannelID_q7r(3)")).out,
             QStringLiteral("2\n3\n1\n"));
}

void tst_ctl_tables::refusedCellsAreListedAndNothingIsImported() {
    const QByteArray before = contentOf(QStringLiteral("a.k4p"));
    writeFile(QStringLiteral("t.csv"), "RxFreq_q7r,TxPower_q7r\r\n150,Low\r\n999,Enormous\r\n151\r\n");
    const Outcome outcome = run(QStringLiteral("import a.k4p") + kChannels + QStringLiteral("t.csv"));
    QCOMPARE(outcome.code, 1);
    QCOMPARE(contentOf(QStringLiteral("a.k4p")), before);
    for (const char *part : {"row 2, RxFreq_q7r: Rx Frequency must lie between",
                             "row 2, TxPower_q7r: ", "row 3: 1 cells instead of 2", "Nothing was imported."})
        QVERIFY2(outcome.err.contains(QString::fromLatin1(part)), qPrintable(outcome.err));
    QVERIFY(!outcome.err.contains(QStringLiteral("row 1")));
}

void tst_ctl_tables::partialLeavesOutWholeRows() {
    writeFile(QStringLiteral("t.csv"), "RxFreq_q7r,TxPower_q7r\r\n150,Low\r\n999,Medium\r\n151,Low\r\n");
    const Outcome outcome = run(QStringLiteral("import a.k4p --partial") + kChannels + QStringLiteral("t.csv"));
    QCOMPARE(outcome.code, 1);
    QVERIFY2(outcome.err.contains(QStringLiteral("1 of 3 rows were left out.")), qPrintable(outcome.err));
    QCOMPARE(run(QStringLiteral("get a.k4p RxFreq_q7r(1) TxPower_q7r(1) RxFreq_q7r(2) TxPower_q7r(2)")).out,
             QStringLiteral("150.000000\nLow\n151.000000\nLow\n"));
    QCOMPARE(run(QStringLiteral("get a.k4p RxFreq_q7r(3)")).code, 1);
}

void tst_ctl_tables::brokenTableIsRefused_data() {
    QTest::addColumn<QByteArray>("table");
    QTest::addColumn<int>("code");
    QTest::newRow("empty") << QByteArray() << 3;
    QTest::newRow("open quote") << QByteArray("RxFreq_q7r\r\n\"150\r\n") << 3;
    QTest::newRow("text behind a quote") << QByteArray("RxFreq_q7r\r\n\"150\"1\r\n") << 3;
    QTest::newRow("quote in a plain cell") << QByteArray("RxFreq_q7r\r\n15\"0\r\n") << 3;
    QTest::newRow("no UTF-8") << QByteArray("RxFreq_q7r\r\n15\xFF\r\n") << 3;
    QTest::newRow("unknown column") << QByteArray("Colour\r\nred\r\n") << 2;
    QTest::newRow("column of other records") << QByteArray("EconomyTimer\r\n1\r\n") << 2;
    QTest::newRow("column twice") << QByteArray("RxFreq_q7r,Rx Frequency\r\n150,151\r\n") << 2;
}

void tst_ctl_tables::brokenTableIsRefused() {
    QFETCH(QByteArray, table);
    QFETCH(int, code);
    const QByteArray before = contentOf(QStringLiteral("a.k4p"));
    writeFile(QStringLiteral("t.csv"), table);
    const Outcome outcome = run(QStringLiteral("import a.k4p") + kChannels + QStringLiteral("t.csv"));
    QVERIFY2(outcome.code == code, qPrintable(QString::number(outcome.code) + u' ' + outcome.err));
    QVERIFY(!outcome.err.isEmpty());
    QCOMPARE(contentOf(QStringLiteral("a.k4p")), before);
}

QTEST_GUILESS_MAIN(tst_ctl_tables)
#include "tst_ctl_tables.moc"
