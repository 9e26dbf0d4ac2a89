#include "checksums.h"
#include "link_doubles.h"
#include "port_access.h"
#include "pseudo_terminal.h"
#include "radio_report_text.h"
#include "rows.h"
#include "sim_process.h"
#include "wire_messages.h"

#include <QTest>
#include <QTimer>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {
QStringList radio(const SimProcess &sim, const char *tier = "Basic") {
    return {u"--image"_s, sim.image(), u"--tier"_s, QString::fromLatin1(tier)};
}

} // namespace

class RadioLinkTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void interrogationTellsWhoTheRadioIs() {
        SimProcess sim;
        QVERIFY(
            sim.start(radio(sim) + QStringList{u"--serial"_s, u"123"_s, u"--band"_s, u"2"_s, u"--version"_s, u"1"_s}));
        LinkBench bench;
        const RadioReport report = bench.link.interrogate(sim.link());
        QCOMPARE(report.fault, LinkFault::None);
        QCOMPARE(report.identity->serialText(), u"00000123"_s);
        QCOMPARE(report.identity->tier, quint8(0));
        QCOMPARE(report.identity->band, quint8(2));
        QCOMPARE(report.identity->databaseLevel, quint8(1));
        QCOMPARE(*report.checksum, Checksums::crc32(sim.activeBank()));
        QCOMPARE(bench.progress.phases, QStringList{u"Radio Interrogation 0"_s});
        QCOMPARE(bench.tap.highestSpeed, 115200);
    }

    void programmedContentIsVerifiedAndTheOldOneKept() {
        SimProcess sim;
        QVERIFY(sim.start(radio(sim)));
        const QByteArray old = sim.activeBank();
        LinkBench bench;
        for (int run = 0; run < 2; ++run) { // the second one goes to the other bank
            const RadioReport report = bench.link.program(sim.link(), bench.data, bench.content);
            QCOMPARE(report.fault, LinkFault::None);
            QCOMPARE(report.outcome, RadioOutcome::NewContentVerified);
            QCOMPARE(sim.activeBank(), bench.content.image);
            QCOMPARE(bench.content.oldContent, Checksums::crc32(bench.content.restorePoint));
            QCOMPARE(*report.checksum, bench.content.newContent);
            QCOMPARE(bench.content.restorePoint == old, run == 0);
        }
        QCOMPARE(sim.activeBank(), old); // turned over twice
        const QStringList titles{u"Radio Interrogation"_s, u"Reading Radio"_s, u"Programming Radio"_s};
        for (int phase = 0; phase < titles.size(); ++phase)
            QVERIFY(bench.progress.phases[phase].startsWith(titles[phase]));
        QCOMPARE(bench.progress.moved[2], 2 * old.size());
    }

    void mismatchTouchesNothing() {
        const auto option = [](const char *name, const char *value) {
            return QStringList{QString::fromLatin1(name), QString::fromLatin1(value)};
        };

        for (const auto &[radioOptions, fault, radios, datas] : Rows<QStringList, LinkFault, QString, QString>{
                 {"tier", option("--tier", "Standard"), LinkFault::WrongTier, u"KX4600 Standard"_s, u"KX4600 Basic"_s},
                 {"band", option("--band", "2"), LinkFault::WrongBand, u"UHF 400-470 MHz"_s, u"VHF 136-174 MHz"_s},
                 {"radio's database too new", option("--version", "3"), LinkFault::NewerDatabase, u"level 3"_s,
                  u"3.20"_s},
                 {"data too new", option("--version", "1"), LinkFault::OlderDatabase, u"3.10"_s, u"3.20"_s},
             }) {
            SimProcess sim;
            QVERIFY(sim.start(QStringList{u"--tier"_s, u"Basic"_s} + radioOptions));
            LinkBench bench;
            bench.data.databaseLevel = 2;
            const RadioReport report = bench.link.program(sim.link(), bench.data, bench.content);
            QCOMPARE(report.fault, fault);
            QCOMPARE(report.outcome, RadioOutcome::NothingSent);
            QCOMPARE(report.stage, LinkStage::Comparing);
            QCOMPARE(report.details.value(0), radios);
            QCOMPARE(report.details.value(1), datas);
            QVERIFY(!bench.tap.commands.contains(quint8(Wire::Command::OpenSession)));
        }
    }

    void failedRestorePointStopsBeforeTheFirstWrite() {
        SimProcess sim;
        QVERIFY(sim.start(radio(sim)));
        LinkBench bench;
        bench.content.problem = u"disk full"_s;
        const RadioReport report = bench.link.program(sim.link(), bench.data, bench.content);
        QCOMPARE(report.fault, LinkFault::NoRestorePoint);
        QCOMPARE(report.details, QStringList{u"disk full"_s});
        QCOMPARE(report.outcome, RadioOutcome::NothingSent);
        QVERIFY(!bench.tap.commands.contains(quint8(Wire::Command::WriteBlock)));
    }

    void cancelSendsNoFurtherBlockAndLateBytesDoNotHurt() {
        SimProcess sim;
        // At the line's speed: a block takes a third of a second, so that the abort meets one under way.
        QVERIFY(sim.startPlain({u"--link"_s, sim.link(), u"--tier"_s, u"Basic"_s}));
        LinkBench bench;
        qsizetype commandsAtAbort = 0;
        bench.progress.onAdvance = [&](int) {
            QTimer::singleShot(30, this, [&] {
                commandsAtAbort = bench.tap.commands.size();
                bench.link.abort();
            });
            bench.progress.onAdvance = nullptr;
        };
        const RadioReport report = bench.link.read(sim.link());
        QCOMPARE(report.fault, LinkFault::Cancelled);
        QVERIFY(report.image.isEmpty());
        QCOMPARE(bench.tap.commands.size(), commandsAtAbort + 1);
        QCOMPARE(bench.tap.commands.back(), quint8(Wire::Command::CloseSession));
        QCOMPARE(bench.link.interrogate(sim.link()).fault, LinkFault::None);
    }

    void cancelWhileWritingLeavesTheOldContent() {
        SimProcess sim;
        QVERIFY(sim.start(radio(sim)));
        const QByteArray old = sim.activeBank();
        LinkBench bench;
        bench.progress.onAdvance = [&](int) {
            if (bench.progress.phases.size() == 3)
                bench.link.abort();
        };
        const RadioReport report = bench.link.program(sim.link(), bench.data, bench.content);
        QCOMPARE(report.fault, LinkFault::Cancelled);
        QCOMPARE(report.stage, LinkStage::Writing);
        QCOMPARE(report.outcome, RadioOutcome::OldContent);
        QCOMPARE(sim.activeBank(), old);
    }

    void eventsRunBetweenTwoBlocks() {
        SimProcess sim;
        QVERIFY(sim.start(radio(sim)));
        LinkBench bench;
        int turns = 0;
        int advances = 0;
        int lastSeen = -1;
        QTimer timer;
        connect(&timer, &QTimer::timeout, this, [&] {
            if (lastSeen != bench.progress.advances)
                ++turns;
            lastSeen = bench.progress.advances;
        });
        timer.start(0);
        bench.progress.onAdvance = [&](int count) { advances = count; };
        const RadioReport report = bench.link.read(sim.link());
        QCOMPARE(report.fault, LinkFault::None);
        QCOMPARE(report.image, sim.activeBank());
        QCOMPARE(bench.progress.moved.back(), report.image.size());
        QCOMPARE(bench.progress.lastPercentage, u"100 %"_s);
        QVERIFY2(advances > 1 && turns >= advances, qPrintable(u"%1 of %2"_s.arg(turns).arg(advances)));
    }

    void operationInsideAnotherIsRefused() {
        SimProcess sim;
        QVERIFY(sim.start(radio(sim)));
        LinkBench bench;
        LinkFault inner = LinkFault::None;
        bench.progress.onAdvance = [&](int) { inner = bench.link.read(sim.link()).fault; };
        QCOMPARE(bench.link.read(sim.link()).fault, LinkFault::None);
        QCOMPARE(inner, LinkFault::AlreadyRunning);
    }

    void deadPortIsNoAnswer() {
        const PseudoTerminal port;
        LinkBench bench;
        const RadioReport report = bench.link.read(port.device);
        QCOMPARE(report.fault, LinkFault::NoAnswer);
        QCOMPARE(report.stage, LinkStage::Identifying);
        QVERIFY(bench.tap.commands.size() <= 6);
    }

    void babblingPortIsNoise() {
        const PseudoTerminal port;
        QTimer babble;
        connect(&babble, &QTimer::timeout, this, [&] {
            const char noise[] = "\xA5\x5A\x01\x02 garbage \xA5";
            QVERIFY(::write(port.master, noise, sizeof noise) > 0);
        });
        babble.start(20);
        LinkBench bench;
        QCOMPARE(bench.link.interrogate(port.device).fault, LinkFault::Noise);
    }

    void portThatIsMissingOrBusyIsTold() {
        const PseudoTerminal port;
        PortLock lock;
        QVERIFY(lock.take(port.device));
        for (const auto &[device, fault, sentence] : Rows<QString, LinkFault, QString>{
                 {"missing", u"/dev/no-such-port"_s, LinkFault::PortMissing, u"/dev/no-such-port"_s},
                 {"locked", port.device, LinkFault::PortBusy, u"ModemManager"_s},
             }) {
            LinkBench bench;
            const RadioReport report = bench.link.interrogate(device);
            QCOMPARE(report.fault, fault);
            QCOMPARE(report.stage, LinkStage::OpeningPort);
            QVERIFY(RadioReportText::fault(report).filled().contains(sentence));
            QVERIFY(bench.tap.commands.isEmpty());
        }
    }

    void everyFaultHasItsSentence() {
        for (int fault = int(LinkFault::PortMissing); fault <= int(LinkFault::AlreadyRunning); ++fault) {
            RadioReport report;
            report.fault = LinkFault(fault);
            report.details = {u"<1>"_s, u"<2>"_s, u"<3>"_s};
            const QString text = RadioReportText::fault(report).filled();
            QVERIFY2(!text.isEmpty() && !text.contains(u"%"_s), qPrintable(QString::number(fault)));
        }
        for (int stage = int(LinkStage::Identifying); stage < int(LinkStage::Done); ++stage)
            QVERIFY(!RadioReportText::stage(LinkStage(stage)).isEmpty());
    }
};

QTEST_GUILESS_MAIN(RadioLinkTest)
#include "radio_link_test.moc"
