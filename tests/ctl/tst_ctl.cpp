#include "tool_run.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QTest>

using namespace ToolRun;

// The real program: what it prints, what it leaves in files, how it ends.
class tst_ctl : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup() { mFolder.reset(); }
    void exitCode_data();
    void exitCode();
    void valuesGoInAndComeOut_data();
    void valuesGoInAndComeOut();
    void oneRefusedValueLeavesTheFileAsItWas();
    void tierOptionLeavesTheFilesCurrentTier();
    void childRecordsCountBelowTheirParentOrOverAll();
    void differencesNameFormRecordAndLabel();
    void checkNamesWhatIsWrong();
    void questionCountsAsNo();
    void everyQueryHasJson_data();
    void everyQueryHasJson();

  private:
    std::unique_ptr<ToolFolder> mFolder;
};

void tst_ctl::init() {
    mFolder = std::make_unique<ToolFolder>();
    QCOMPARE(run(QStringLiteral("new -o a.k4p")).code, 0);
}

void tst_ctl::exitCode_data() {
    QTest::addColumn<QString>("line");
    QTest::addColumn<int>("code");
    QTest::newRow("no command") << "" << 2;
    QTest::newRow("help") << "--help" << 0;
    QTest::newRow("help of a command") << "export --help" << 0;
    QTest::newRow("unknown command") << "frobnicate" << 2;
    QTest::newRow("unknown option") << "info a.k4p --fast" << 2;
    QTest::newRow("option without its value") << "new -o" << 2;
    QTest::newRow("option twice") << "new -o b.k4p -o c.k4p" << 2;
    QTest::newRow("missing argument") << "info" << 2;
    QTest::newRow("argument too many") << "info a.k4p b.k4p" << 2;
    QTest::newRow("new without a name") << "new" << 2;
    QTest::newRow("unknown tier") << "new --tier basic -o b.k4p" << 2;
    QTest::newRow("unknown version") << "new --version 3 -o b.k4p" << 2;
    QTest::newRow("older version") << "new --version 1 -o b.k4p" << 0;
    QTest::newRow("unwritable place") << "new -o missing/b.k4p" << 3;
    QTest::newRow("missing file") << "info missing.k4p" << 3;
    QTest::newRow("folder for a file") << "get . EconomyTimer" << 3;
    QTest::newRow("unknown UIID") << "get a.k4p economytimer" << 2;
    QTest::newRow("record number missing") << "get a.k4p RxFreq_q7r" << 2;
    QTest::newRow("record zero") << "get a.k4p RxFreq_q7r(0)" << 2;
    QTest::newRow("record that is not there") << "get a.k4p RxFreq_q7r(2)" << 1;
    QTest::newRow("parent where there is none") << "get a.k4p RxFreq_q7r(1.1)" << 2;
    QTest::newRow("no assignment") << "set a.k4p EconomyTimer" << 2;
    QTest::newRow("refused value") << "set a.k4p EconomyTimer=256" << 1;
    QTest::newRow("field of the radio itself") << "set a.k4p SerialNumber=12345678" << 1;
    QTest::newRow("last record") << "delete a.k4p ChannelID_q7r(1)" << 1;
    QTest::newRow("unknown guide") << "add a.k4p Channels" << 2;
    QTest::newRow("parent of a record that has none") << "delete a.k4p ChannelID_q7r(1.1)" << 2;
    QTest::newRow("table without its guide") << "export a.k4p" << 2;
    QTest::newRow("table of an unknown guide") << "export a.k4p --record Channels" << 2;
    QTest::newRow("table that is not there") << "import a.k4p --record ChannelID_q7r missing.csv" << 3;
    QTest::newRow("report") << "report a.k4p -o a.txt" << 0;
    QTest::newRow("report of an unknown kind") << "report a.k4p -o a.doc" << 2;
    QTest::newRow("report of an unknown form") << "report a.k4p --form Nowhere -o a.txt" << 2;
    QTest::newRow("report as PDF to an unwritable place") << "report a.k4p -o missing/a.pdf" << 3;
    QTest::newRow("report as text to an unwritable place") << "report a.k4p -o missing/a.txt" << 3;
    QTest::newRow("no difference") << "diff a.k4p a.k4p" << 0;
    QTest::newRow("port missing") << "interrogate" << 2;
    QTest::newRow("port that does not exist") << "interrogate --port /dev/no-such-port" << 3;
    QTest::newRow("restore points of nobody") << "restore-points 123" << 0;
}

void tst_ctl::exitCode() {
    QFETCH(QString, line);
    QFETCH(int, code);
    const Outcome outcome = run(line);
    QVERIFY2(outcome.code == code, qPrintable(QString::number(outcome.code) + u' ' + outcome.err));
    QVERIFY(code == 0 || !outcome.err.isEmpty());
    QVERIFY(code == 0 || outcome.out.isEmpty());
}

void tst_ctl::valuesGoInAndComeOut_data() {
    QTest::addColumn<QString>("assignment");
    QTest::addColumn<QString>("address");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("raw");
    const auto row = [](const char *name, const char *first, const char *second, const char *third,
                        const char *fourth) { QTest::newRow(name) << first << second << third << fourth; };
    row("number", "EconomyTimer=20", "EconomyTimer", "20", "20");
    row("frequency", "RxFreq_q7r(1)=156.5", "RxFreq_q7r(1)", "156.500000", "156500000");
    row("stored frequency", "RxFreq_q7r(1)=#150000000", "RxFreq_q7r(1)", "150.000000", "150000000");
    row("list item", "TxPower_q7r(1)=Low", "TxPower_q7r(1)", "Low", "1");
    row("stored list item", "TxPower_q7r(1)=#2", "TxPower_q7r(1)", "Medium", "2");
    row("item with a value of its own", "ChannelBandwidth_q7r(1)=25 kHz", "ChannelBandwidth_q7r(1)", "25 kHz", "250");
    row("tone", "RxSignalling_q7r(1)=67.0 Hz", "RxSignalling_q7r(1)", "67.0 Hz", "1");
    row("flag", "IsUserDefined_q7r(1)=1", "IsUserDefined_q7r(1)", "1", "1");
    row("reference", "ChannelNetworkId_q7r(1)=1", "ChannelNetworkId_q7r(1)", "1", "1");
}

void tst_ctl::valuesGoInAndComeOut() {
    QFETCH(QString, assignment);
    QFETCH(QString, address);
    QFETCH(QString, shown);
    QFETCH(QString, raw);
    const Outcome set = run(QStringList{QStringLiteral("set"), QStringLiteral("a.k4p"), assignment});
    QVERIFY2(set.code == 0, qPrintable(set.err));
    QCOMPARE(run(QStringLiteral("get a.k4p ") + address).out, shown + u'\n');
    QCOMPARE(run(QStringLiteral("get a.k4p --raw ") + address).out, raw + u'\n');
}

void tst_ctl::oneRefusedValueLeavesTheFileAsItWas() {
    const QByteArray before = contentOf(QStringLiteral("a.k4p"));
    QCOMPARE(run(QStringLiteral("set a.k4p EconomyTimer=20 TxPower_q7r(1)=Enormous")).code, 1);
    QCOMPARE(contentOf(QStringLiteral("a.k4p")), before);
    QCOMPARE(run(QStringLiteral("set a.k4p -o b.k4p EconomyTimer=20")).code, 0);
    QCOMPARE(contentOf(QStringLiteral("a.k4p")), before);
    QCOMPARE(run(QStringLiteral("get b.k4p EconomyTimer")).out, QStringLiteral("20\n"));
    QVERIFY(!QDir(QStringLiteral("config")).exists());
}

void tst_ctl::tierOptionLeavesTheFilesCurrentTier() {
    QCOMPARE(run(QStringLiteral("set a.k4p --tier Advanced EconomyTimer=20")).code, 0);
    QCOMPARE(run(QStringLiteral("get a.k4p EconomyTimer")).out, QStringLiteral("10\n"));
    QCOMPARE(run(QStringLiteral("get a.k4p --tier Advanced EconomyTimer")).out, QStringLiteral("20\n"));
    QVERIFY(run(QStringLiteral("info a.k4p")).out.contains(QStringLiteral("Radio Model = KX4600 Basic")));
}

void tst_ctl::childRecordsCountBelowTheirParentOrOverAll() {
    for (int i = 0; i < 2; ++i)
        QCOMPARE(run(QStringLiteral("add a.k4p GroupID_q7r")).out, QString::number(i + 1) + u'\n');
    QCOMPARE(run(QStringLiteral("add a.k4p FilteredScanGroupChannelMemberID(1.1)")).out, QStringLiteral("1\n"));
    QCOMPARE(run(QStringLiteral("add a.k4p FilteredScanGroupChannelMemberID(2.1)")).out, QStringLiteral("1\n"));
    QCOMPARE(run(QStringLiteral("set a.k4p FilteredScanGroupChannelMemberID(2.1)=1")).code, 0);
    const QString all = run(QStringLiteral("get a.k4p FilteredScanGroupChannelMemberID(2)")).out;
    QCOMPARE(run(QStringLiteral("get a.k4p FilteredScanGroupChannelMemberID(2.1)")).out, all);
    QCOMPARE(run(QStringLiteral("get a.k4p FilteredScanGroupChannelMemberID(1.2)")).code, 1);
}

void tst_ctl::differencesNameFormRecordAndLabel() {
    QCOMPARE(run(QStringLiteral("set a.k4p -o b.k4p RxFreq_q7r(1)=150")).code, 0);
    const Outcome outcome = run(QStringLiteral("diff a.k4p b.k4p"));
    QCOMPARE(outcome.code, 1);
    QVERIFY2(outcome.out.contains(QStringLiteral("Basic: Channels 1: Rx Frequency: 160.000000 / 150.000000")),
             qPrintable(outcome.out));
}

void tst_ctl::checkNamesWhatIsWrong() {
    const Outcome sound = run(QStringLiteral("check a.k4p"));
    QVERIFY2(sound.code == 0, qPrintable(sound.out));
    QCOMPARE(run(QStringLiteral("set a.k4p ChannelBandwidth_q7r(1)=#250")).code, 0);
    const Outcome outcome = run(QStringLiteral("check a.k4p"));
    QCOMPARE(outcome.code, 1);
    QVERIFY2(outcome.out.contains(QStringLiteral("Channels 1: Bandwidth")), qPrintable(outcome.out));
}

void tst_ctl::questionCountsAsNo() {
    QCOMPARE(run(QStringLiteral("set a.k4p VSWRFoldbackOverride=1")).code, 0);
    QCOMPARE(run(QStringLiteral("squirt a.k4p -o a.sqt")).code, 1);
    QVERIFY(!QFile::exists(QStringLiteral("a.sqt")));
    const Outcome outcome = run(QStringLiteral("squirt a.k4p -o a.sqt --yes"));
    QVERIFY2(outcome.code == 0, qPrintable(outcome.err));
    QVERIFY(run(QStringLiteral("get a.sqt EconomyTimer")).err.contains(QStringLiteral("program it into a radio")));
}

void tst_ctl::everyQueryHasJson_data() {
    QTest::addColumn<QString>("line");
    for (const char *line : {"info a.k4p", "check a.k4p", "get a.k4p EconomyTimer", "diff a.k4p a.k4p", "fields",
                             "export a.k4p --record ChannelID_q7r", "forms", "ports", "restore-points"})
        QTest::newRow(line) << QString::fromLatin1(line);
}

void tst_ctl::everyQueryHasJson() {
    QFETCH(QString, line);
    const Outcome outcome = run(line + QStringLiteral(" --json"));
    QCOMPARE(outcome.code, 0);
    QJsonParseError error{};
    QJsonDocument::fromJson(outcome.out.toUtf8(), &error);
    QVERIFY2(error.error == QJsonParseError::NoError, qPrintable(error.errorString()));
}

QTEST_GUILESS_MAIN(tst_ctl)
#include "tst_ctl.moc"
