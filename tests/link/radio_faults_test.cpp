#include "checksums.h"
#include "link_doubles.h"
#include "sim_process.h"
#include "wire_messages.h"
#include "wire_timing.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {
QStringList radio(const SimProcess &sim) { return {u"--image"_s, sim.image(), u"--tier"_s, u"Basic"_s}; }
} // namespace

// Programming at its most delicate moments: the report tells the truth about what the radio holds.
class RadioFaultsTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void cutAtTheCommitIsToldAsOpen() {
        const bool full = !qEnvironmentVariableIsEmpty("KX_FULL");
        for (const int fewer :
             full ? QList<int>{0, 1} : QList<int>{0}) { // bytes: the answer lost, the request not whole
            SimProcess whole;
            QVERIFY(whole.start(radio(whole)));
            LinkBench measured;
            QVERIFY(measured.link.program(whole.link(), measured.data, measured.content).succeeded());
            const qsizetype commit = measured.tap.commands.indexOf(quint8(Wire::Command::Commit));
            QVERIFY(commit > 0);
            SimProcess sim;
            QVERIFY(sim.start(
                radio(sim) + QStringList{u"--cut-after"_s, QString::number(measured.tap.bytesBehind[commit] - fewer)}));
            const QByteArray old = sim.activeBank();
            LinkBench bench;
            const RadioReport report = bench.link.program(sim.link(), bench.data, bench.content);
            QCOMPARE(report.outcome, RadioOutcome::LastAnswerLost);
            QCOMPARE(report.stage, LinkStage::Committing);
            QCOMPARE(sim.activeBank(), fewer == 0 ? bench.content.image : old);
        }
    }

    void killedRadioKeepsOneWholeContent() {
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

    void sessionThatEndedDuringAQuestionIsOpenedAgain() {
        SimProcess sim;
        QVERIFY(sim.start(radio(sim)));
        LinkBench bench;
        bench.content.takesMilliseconds = int((WireTiming::kSessionSilence + std::chrono::milliseconds(200)).count());
        const RadioReport report = bench.link.program(sim.link(), bench.data, bench.content);
        QCOMPARE(report.outcome, RadioOutcome::NewContentVerified);
        QCOMPARE(bench.tap.commands.count(quint8(Wire::Command::OpenSession)), 2);
        QCOMPARE(sim.activeBank(), bench.content.image);
    }
};

QTEST_GUILESS_MAIN(RadioFaultsTest)
#include "radio_faults_test.moc"
