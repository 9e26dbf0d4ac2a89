#include "tool_run.h"

#include <QTest>

using namespace ToolRun;
using namespace Qt::Literals::StringLiterals;

// kx4600ctl replay as a process.
class ReplayCommandTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void scriptIsReplayedAndCompared_data();
    void scriptIsReplayedAndCompared();
    void replayedDataIsSaved();

  private:
    std::unique_ptr<ToolFolder> mFolder;
};

// The reference differs from new data by a timer, in the tier that has channels enough.
void ReplayCommandTest::init() {
    mFolder = nullptr;
    mFolder = std::make_unique<ToolFolder>();
    QCOMPARE(run(u"new --tier Standard -o reference.k4p"_s).code, 0);
    QCOMPARE(run(u"set reference.k4p EconomyTimer=25"_s).code, 0);
    writeFile(u"first.tst"_s, "UI Fields:\r\nEconomyTimer = 25\r\n");
}

void ReplayCommandTest::scriptIsReplayedAndCompared_data() {
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("out");
    QTest::addColumn<QString>("err");
    QTest::newRow("same") << QByteArray("UI Fields:\nEconomyTimer = 25\n\nDatabase Fields:\nEconomyTimer\nRxFreq_q7r\n")
                          << 0 << QString() << QString();
    QTest::newRow("initial state") << QByteArray(
                                          "Initial State:\nfirst.tst\n\nUI Fields:\n\nDatabase Fields:\nEconomyTimer\n")
                                   << 0 << QString() << QString();
    QTest::newRow("other value") << QByteArray("UI Fields:\nEconomyTimer = 26\n\nDatabase Fields:\nEconomyTimer\n") << 1
                                 << u"EconomyTimer: 26 / 25\n"_s << QString();
    QTest::newRow("not compared") << QByteArray("UI Fields:\nEconomyTimer = 26\n") << 0 << QString() << QString();
    QTest::newRow("record more") << QByteArray("UI Fields:\nAdd ChannelID_q7r-Channels9000, 1\n\nDatabase "
                                               "Fields:\nRxFreq_q7r\n")
                                 << 1 << u"RxFreq_q7r: 2 records / 1 records\n"_s << QString();
    QTest::newRow("bad line goes on") << QByteArray("UI Fields:\nDelete ChannelID_q7r 1\nEconomyTimer = 25\n\nDatabase "
                                                    "Fields:\nEconomyTimer\n")
                                      << 1 << QString() << u"Invalid line 'Delete ChannelID_q7r 1'\n"_s;
    QTest::newRow("unknown field to compare")
        << QByteArray("Database Fields:\nNoSuchField\n") << 1 << QString() << u"unknown UIID NoSuchField\n"_s;
    QTest::newRow("initial state missing")
        << QByteArray("Initial State:\nnone.tst\n") << 3 << QString() << u"Initial State file none.tst not found\n"_s;
}

void ReplayCommandTest::scriptIsReplayedAndCompared() {
    QFETCH(const QByteArray, script);
    writeFile(u"a.tst"_s, script);
    const Outcome outcome = run(u"replay a.tst --reference reference.k4p"_s);
    QTEST(outcome.code, "code");
    QTEST(outcome.out, "out");
    QTEST(outcome.err, "err");
}

void ReplayCommandTest::replayedDataIsSaved() {
    QCOMPARE(run(u"replay first.tst --tier Advanced -o out.k4p"_s).code, 0);
    QCOMPARE(run(u"get out.k4p EconomyTimer"_s).out, u"25\n"_s);
    QVERIFY(run(u"info out.k4p"_s).out.contains(u"KX4600 Advanced"_s));
    QCOMPARE(run(u"replay first.tst -o no/such/out.k4p"_s).code, 3);
    QCOMPARE(run(u"replay missing.tst"_s).code, 3);
    QCOMPARE(run(u"replay first.tst --reference missing.k4p"_s).code, 3);
}

QTEST_GUILESS_MAIN(ReplayCommandTest)
#include "replay_command_test.moc"
