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

// Programming over a bad line: whatever happens, the report tells the truth about what the radio holds.
class RadioFaultsTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void noisyLineEndsVerifiedOrHonest();
    void hopelessLineGivesUpWithTheOldContent();
    void cutLineLeavesOneWholeContent();
    void cutAtTheCommitIsToldAsOpen_data();
    void cutAtTheCommitIsToldAsOpen();
    void killedRadioKeepsOneWholeContent();
    void sessionThatEndedDuringAQuestionIsOpenedAgain();

  private:
    static bool reportIsTrue(const RadioReport &report, const QByteArray &active, const QByteArray &old,
                             const QByteArray &fresh);
};

bool RadioFaultsTest::reportIsTrue(const RadioReport &report, const QByteArray &active, const QByteArray &old,
                                   const QByteArray &fresh) {
    switch (report.outcome) {
    case RadioOutcome::NothingSent:
    case RadioOutcome::OldContent:
        return active == old && !report.succeeded();
    case RadioOutcome::NewContentVerified:
        return active == fresh && report.succeeded();
    case RadioOutcome::LastAnswerLost:
        return (active == old || active == fresh) && !report.succeeded();
    }
    return false;
}

void RadioFaultsTest::noisyLineEndsVerifiedOrHonest() {
    int dropped = 0;
    int corrupted = 0;
    int verified = 0;
    constexpr int kSeeds = 1;
    for (int seed = 1; seed <= kSeeds; ++seed) {
        SimProcess sim;
        QVERIFY(sim.start(radio(sim) + QStringList{QStringLiteral("--drop"), QStringLiteral("0.001"),
                                                   QStringLiteral("--corrupt"), QStringLiteral("0.001"),
                                                   QStringLiteral("--seed"), QString::number(seed)}));
        const QByteArray old = sim.activeBank();
        LinkBench bench;
        const RadioReport report = bench.link.program(sim.link(), bench.data, bench.content);
        QVERIFY(reportIsTrue(report, sim.activeBank(), old, bench.content.image));
        verified += report.outcome == RadioOutcome::NewContentVerified ? 1 : 0;
        sim.terminate();
        dropped += sim.count(QStringLiteral("dropped"));
        corrupted += sim.count(QStringLiteral("corrupted"));
    }
    qInfo("%d of %d runs verified, %d bytes dropped, %d corrupted", verified, kSeeds, dropped, corrupted);
    QVERIFY2(dropped > 20 && corrupted > 20, "the line was too good to prove anything");
    QVERIFY2(verified > 0, "such a line must not stop every run");
}

void RadioFaultsTest::hopelessLineGivesUpWithTheOldContent() {
    SimProcess sim;
    QVERIFY(sim.start(radio(sim) + QStringList{QStringLiteral("--drop"), QStringLiteral("0.02"),
                                               QStringLiteral("--corrupt"), QStringLiteral("0.02")}));
    const QByteArray old = sim.activeBank();
    LinkBench bench;
    const RadioReport report = bench.link.program(sim.link(), bench.data, bench.content);
    QVERIFY(!report.succeeded());
    QVERIFY(report.fault == LinkFault::Noise || report.fault == LinkFault::CutOff);
    QVERIFY(report.outcome == RadioOutcome::NothingSent || report.outcome == RadioOutcome::OldContent);
    QCOMPARE(sim.activeBank(), old);
}

void RadioFaultsTest::cutLineLeavesOneWholeContent() {
    SimProcess whole;
    QVERIFY(whole.start(radio(whole)));
    LinkBench measured;
    QVERIFY(measured.link.program(whole.link(), measured.data, measured.content).succeeded());
    const qint64 total = measured.tap.bytes;
    constexpr int kCuts = 4;
    int early = 0;
    int late = 0;
    for (int cut = 0; cut < kCuts; ++cut) {
        SimProcess sim;
        QVERIFY(sim.start(radio(sim) + QStringList{QStringLiteral("--cut-after"),
                                                   QString::number(total * (2 * cut + 1) / (2 * kCuts))}));
        const QByteArray old = sim.activeBank();
        LinkBench bench;
        const RadioReport report = bench.link.program(sim.link(), bench.data, bench.content);
        QCOMPARE(report.fault, LinkFault::CutOff);
        QVERIFY(reportIsTrue(report, sim.activeBank(), old, bench.content.image));
        ++(report.outcome == RadioOutcome::NothingSent ? early : late);
    }
    QVERIFY2(early > 0 && late > 0, "cuts must fall before and behind the first write");
}

void RadioFaultsTest::cutAtTheCommitIsToldAsOpen_data() {
    QTest::addColumn<int>("fewer");
    QTest::addColumn<bool>("switched");
    QTest::newRow("request not whole") << 1 << false;
    QTest::newRow("answer lost") << 0 << true;
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
