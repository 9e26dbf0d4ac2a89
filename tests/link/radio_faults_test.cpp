#include "checksums.h"
#include "link_doubles.h"
#include "sim_process.h"
#include "wire_messages.h"
#include "wire_timing.h"

#include <QTest>

namespace {
QStringList radio(const SimProcess &sim) {
    return {QStringLiteral("--image"), sim.image(), QStringLiteral("--tier"), QStringLiteral("Basic")};
}
} // namespace

// Programming at its most delicate moments: the report tells the truth about what the radio holds.
class RadioFaultsTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void cutAtTheCommitIsToldAsOpen_data();
    void cutAtTheCommitIsToldAsOpen();
    void killedRadioKeepsOneWholeContent();
    void sessionThatEndedDuringAQuestionIsOpenedAgain();
};

void RadioFaultsTest::cutAtTheCommitIsToldAsOpen_data() {
    QTest::addColumn<int>("fewer");
    QTest::addColumn<bool>("switched");
    QTest::newRow("answer lost") << 0 << true;
    if (!qEnvironmentVariableIsEmpty("KX_FULL"))
        QTest::newRow("request not whole") << 1 << false;
}

void RadioFaultsTest::cutAtTheCommitIsToldAsOpen() {
    QFETCH(int, fewer);
    QFETCH(bool, switched);
    SimProcess whole;
    QVERIFY(whole.start(radio(whole)));
    LinkBench measured;
    QVERIFY(measured.link.program(whole.link(), measured.data, measured.content).succeeded());
    const qsizetype commit = measured.tap.commands.indexOf(quint8(Wire::Command::Commit));
    QVERIFY(commit > 0);
    SimProcess sim;
    QVERIFY(sim.start(radio(sim) + QStringList{QStringLiteral("--cut-after"),
                                               QString::number(measured.tap.bytesBehind[commit] - fewer)}));
    const QByteArray old = sim.activeBank();
    LinkBench bench;
    const RadioReport report = bench.link.program(sim.link(), bench.data, bench.content);
    QCOMPARE(report.outcome, RadioOutcome::LastAnswerLost);
    QCOMPARE(report.stage, LinkStage::Committing);
    QCOMPARE(sim.activeBank(), switched ? bench.content.image : old);
}

void RadioFaultsTest::killedRadioKeepsOneWholeContent() {
    SimProcess sim;
    QVERIFY(sim.start(radio(sim)));
    const QByteArray old = sim.activeBank();
    LinkBench bench;
    bench.progress.onAdvance = [&](int) {
        if (bench.progress.phases.size() == 3)
            sim.kill();
    };
    const RadioReport report = bench.link.program(sim.link(), bench.data, bench.content);
    QCOMPARE(report.fault, LinkFault::CutOff);
    QCOMPARE(report.outcome, RadioOutcome::OldContent);
    QVERIFY(sim.start(radio(sim)));
    LinkBench again;
    const RadioReport next = again.link.interrogate(sim.link());
    QCOMPARE(*next.checksum, Checksums::crc32(old));
}

void RadioFaultsTest::sessionThatEndedDuringAQuestionIsOpenedAgain() {
    SimProcess sim;
    QVERIFY(sim.start(radio(sim)));
    LinkBench bench;
    bench.content.takesMilliseconds = int((WireTiming::kSessionSilence + std::chrono::milliseconds(200)).count());
    const RadioReport report = bench.link.program(sim.link(), bench.data, bench.content);
    QCOMPARE(report.outcome, RadioOutcome::NewContentVerified);
    QCOMPARE(bench.tap.commands.count(quint8(Wire::Command::OpenSession)), 2);
    QCOMPARE(sim.activeBank(), bench.content.image);
}

QTEST_GUILESS_MAIN(RadioFaultsTest)
#include "radio_faults_test.moc"
