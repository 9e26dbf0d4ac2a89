#include "sim_process.h"
#include "tool_run.h"

#include <QTest>

using namespace ToolRun;

// The radio commands over a simulated radio.
class tst_ctl_radio : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() { mFolder = std::make_unique<ToolFolder>(); }
    void cleanup() { mFolder.reset(); }
    void commandsCarryAValueThroughTheRadio();
    void squirtFileProgramsWhatItsDataHeld();
    void squirtFileThatDoesNotFitIsRefused_data();
    void squirtFileThatDoesNotFitIsRefused();

  private:
    std::unique_ptr<ToolFolder> mFolder;
};

void tst_ctl_radio::commandsCarryAValueThroughTheRadio() {
    SimProcess radio;
    QVERIFY(radio.start(
        {QStringLiteral("--tier"), QStringLiteral("Basic"), QStringLiteral("--serial"), QStringLiteral("12345678")}));
    const QString port = QStringLiteral(" --port ") + radio.link();
    const Outcome identity = run(QStringLiteral("interrogate") + port);
    QVERIFY2(identity.code == 0 && identity.out.contains(QStringLiteral("12345678")), qPrintable(identity.err));
    QCOMPARE(run(QStringLiteral("read -o r.k4p") + port).code, 0);
    QCOMPARE(run(QStringLiteral("get r.k4p SerialNumber")).out, QStringLiteral("12345678\n"));
    QCOMPARE(run(QStringLiteral("set r.k4p EconomyTimer=99 RxFreq_q7r(1)=150.5")).code, 0);
    const Outcome programmed = run(QStringLiteral("program r.k4p") + port);
    QVERIFY2(programmed.code == 0, qPrintable(programmed.err));
    QVERIFY(programmed.err.contains(QStringLiteral("The radio has the new content, verified.")));
    QCOMPARE(run(QStringLiteral("read -o s.k4p") + port).code, 0);
    QCOMPARE(run(QStringLiteral("diff r.k4p s.k4p")).code, 0);
    QVERIFY(run(QStringLiteral("restore-points 12345678")).out.contains(QStringLiteral(".k4p")));
    QCOMPARE(run(QStringLiteral("new --tier Advanced -o wrong.k4p")).code, 0);
    const Outcome wrong = run(QStringLiteral("program wrong.k4p") + port);
    QCOMPARE(wrong.code, 3);
    QVERIFY(wrong.err.contains(QStringLiteral("Nothing was sent to the radio.")));
}

void tst_ctl_radio::squirtFileProgramsWhatItsDataHeld() {
    SimProcess radio;
    QVERIFY(radio.start({QStringLiteral("--tier"), QStringLiteral("Standard")}));
    const QString port = QStringLiteral(" --port ") + radio.link();
    QCOMPARE(run(QStringLiteral("read -o a.k4p") + port).code, 0);
    QCOMPARE(run(QStringLiteral("set a.k4p EconomyTimer=99")).code, 0);
    QCOMPARE(run(QStringLiteral("add a.k4p ChannelID_q7r")).code, 0);
    QCOMPARE(run(QStringLiteral("squirt a.k4p -o a.sqt")).code, 0);
    QCOMPARE(run(QStringLiteral("program a.sqt --tier Basic") + port).code, 2);
    const Outcome programmed = run(QStringLiteral("program a.sqt") + port);
    QVERIFY2(programmed.code == 0, qPrintable(programmed.err));
    QCOMPARE(run(QStringLiteral("read -o b.k4p") + port).code, 0);
    const Outcome difference = run(QStringLiteral("diff a.k4p b.k4p"));
    QVERIFY2(difference.code == 0, qPrintable(difference.out));
}

void tst_ctl_radio::squirtFileThatDoesNotFitIsRefused_data() {
    QTest::addColumn<QByteArray>("from");
    QTest::addColumn<QByteArray>("to");
    QTest::addColumn<QString>("text");
    QTest::newRow("changed image") << QByteArray("00") << QByteArray("01") << "does not fit its checksum";
    QTest::newRow("cut off") << QByteArray("\"sha256\"") << QByteArray() << "does not fit its checksum";
    QTest::newRow("not there") << QByteArray() << QByteArray() << "/no/radio does not exist";
}

void tst_ctl_radio::squirtFileThatDoesNotFitIsRefused() {
    QFETCH(QByteArray, from);
    QFETCH(QByteArray, to);
    QFETCH(QString, text);
    QCOMPARE(run(QStringLiteral("new -o a.k4p")).code, 0);
    QCOMPARE(run(QStringLiteral("squirt a.k4p -o a.sqt")).code, 0);
    QByteArray content = contentOf(QStringLiteral("a.sqt"));
    if (!from.isEmpty())
        content.replace(content.lastIndexOf(from), from.size(), to);
    writeFile(QStringLiteral("a.sqt"), content);
    const Outcome outcome = run(QStringLiteral("program a.sqt --port /no/radio"));
    QCOMPARE(outcome.code, 3);
    QVERIFY2(outcome.err.contains(text), qPrintable(outcome.err));
}

QTEST_GUILESS_MAIN(tst_ctl_radio)
#include "tst_ctl_radio.moc"
