#include "checksums.h"
#include "link_doubles.h"
#include "port_access.h"
#include "radio_report_text.h"
#include "sim_process.h"
#include "wire_messages.h"

#include <QTest>
#include <QTimer>

#include <fcntl.h>
#include <stdlib.h>
#include <unistd.h>

namespace {
QStringList radio(const SimProcess &sim, const char *tier = "Basic") {
    return {QStringLiteral("--image"), sim.image(), QStringLiteral("--tier"), QString::fromLatin1(tier)};
}

// A port at whose other end there is no radio.
struct DeadPort {
    DeadPort() : master(::posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK)) {
        ::grantpt(master);
        ::unlockpt(master);
        device = QString::fromLocal8Bit(::ptsname(master));
    }
    ~DeadPort() { ::close(master); }
    DeadPort(const DeadPort &) = delete;
    DeadPort &operator=(const DeadPort &) = delete;

    int master;
    QString device;
};
} // namespace

class RadioLinkTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void interrogationTellsWhoTheRadioIs();
    void programmedContentIsVerifiedAndTheOldOneKept();
    void mismatchTouchesNothing_data();
    void mismatchTouchesNothing();
    void failedRestorePointStopsBeforeTheFirstWrite();
    void cancelSendsNoFurtherBlockAndLateBytesDoNotHurt();
    void cancelWhileWritingLeavesTheOldContent();
    void eventsRunBetweenTwoBlocks();
    void operationInsideAnotherIsRefused();
    void deadPortIsNoAnswer();
    void babblingPortIsNoise();
    void missingPortIsNamed();
    void lockedPortIsBusy();
    void everyFaultHasItsSentence();
};

void RadioLinkTest::interrogationTellsWhoTheRadioIs() {
    SimProcess sim;
    QVERIFY(
        sim.start(radio(sim) + QStringList{QStringLiteral("--serial"), QStringLiteral("123"), QStringLiteral("--band"),
                                           QStringLiteral("2"), QStringLiteral("--version"), QStringLiteral("1")}));
    LinkBench bench;
    const RadioReport report = bench.link.interrogate(sim.link());
    QCOMPARE(report.fault, LinkFault::None);
    QCOMPARE(report.identity->serialText(), QStringLiteral("00000123"));
    QCOMPARE(report.identity->tier, quint8(0));
    QCOMPARE(report.identity->band, quint8(2));
    QCOMPARE(report.identity->databaseLevel, quint8(1));
    QCOMPARE(*report.checksum, Checksums::crc32(sim.activeBank()));
    QCOMPARE(bench.progress.phases, QStringList{QStringLiteral("Radio Interrogation 0")});
    QCOMPARE(bench.tap.highestSpeed, 115200);
}

void RadioLinkTest::programmedContentIsVerifiedAndTheOldOneKept() {
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
    const QStringList titles{QStringLiteral("Radio Interrogation"), QStringLiteral("Reading Radio"),
                             QStringLiteral("Programming Radio")};
    for (int phase = 0; phase < titles.size(); ++phase)
        QVERIFY(bench.progress.phases[phase].startsWith(titles[phase]));
    QCOMPARE(bench.progress.moved[2], 2 * old.size());
}

void RadioLinkTest::mismatchTouchesNothing_data() {
    QTest::addColumn<QStringList>("radioOptions");
    QTest::addColumn<LinkFault>("fault");
    QTest::addColumn<QString>("radios");
    QTest::addColumn<QString>("datas");
    const auto option = [](const char *name, const char *value) {
        return QStringList{QString::fromLatin1(name), QString::fromLatin1(value)};
    };
    QTest::newRow("tier") << option("--tier", "Standard") << LinkFault::WrongTier << "KX4600 Standard"
                          << "KX4600 Basic";
    QTest::newRow("band") << option("--band", "2") << LinkFault::WrongBand << "UHF 400-470 MHz"
                          << "VHF 136-174 MHz";
    QTest::newRow("radio's database too new") << option("--version", "3") << LinkFault::NewerDatabase << "level 3"
                                              << "3.20";
    QTest::newRow("data too new") << option("--version", "1") << LinkFault::OlderDatabase << "3.10"
                                  << "3.20";
}

void RadioLinkTest::mismatchTouchesNothing() {
    QFETCH(QStringList, radioOptions);
    QFETCH(LinkFault, fault);
    SimProcess sim;
    QVERIFY(sim.start(QStringList{QStringLiteral("--tier"), QStringLiteral("Basic")} + radioOptions));
    LinkBench bench;
    bench.data.databaseLevel = 2;
    const RadioReport report = bench.link.program(sim.link(), bench.data, bench.content);
    QCOMPARE(report.fault, fault);
    QCOMPARE(report.outcome, RadioOutcome::NothingSent);
    QCOMPARE(report.stage, LinkStage::Comparing);
    QTEST(report.details.value(0), "radios");
    QTEST(report.details.value(1), "datas");
    QVERIFY(!bench.tap.commands.contains(quint8(Wire::Command::OpenSession)));
}

void RadioLinkTest::failedRestorePointStopsBeforeTheFirstWrite() {
    SimProcess sim;
    QVERIFY(sim.start(radio(sim)));
    LinkBench bench;
    bench.content.problem = QStringLiteral("disk full");
    const RadioReport report = bench.link.program(sim.link(), bench.data, bench.content);
    QCOMPARE(report.fault, LinkFault::NoRestorePoint);
    QCOMPARE(report.details, QStringList{QStringLiteral("disk full")});
    QCOMPARE(report.outcome, RadioOutcome::NothingSent);
    QVERIFY(!bench.tap.commands.contains(quint8(Wire::Command::WriteBlock)));
}

void RadioLinkTest::cancelSendsNoFurtherBlockAndLateBytesDoNotHurt() {
    SimProcess sim;
    // At the line's speed: a block takes a third of a second, so that the abort meets one under way.
    QVERIFY(sim.startPlain({QStringLiteral("--link"), sim.link(), QStringLiteral("--tier"), QStringLiteral("Basic")}));
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

void RadioLinkTest::cancelWhileWritingLeavesTheOldContent() {
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

void RadioLinkTest::eventsRunBetweenTwoBlocks() {
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
    QCOMPARE(bench.progress.lastPercentage, QStringLiteral("100 %"));
    QVERIFY2(advances > 1 && turns >= advances, qPrintable(QStringLiteral("%1 of %2").arg(turns).arg(advances)));
}

void RadioLinkTest::operationInsideAnotherIsRefused() {
    SimProcess sim;
    QVERIFY(sim.start(radio(sim)));
    LinkBench bench;
    LinkFault inner = LinkFault::None;
    bench.progress.onAdvance = [&](int) { inner = bench.link.read(sim.link()).fault; };
    QCOMPARE(bench.link.read(sim.link()).fault, LinkFault::None);
    QCOMPARE(inner, LinkFault::AlreadyRunning);
}

void RadioLinkTest::deadPortIsNoAnswer() {
    const DeadPort port;
    LinkBench bench;
    const RadioReport report = bench.link.read(port.device);
    QCOMPARE(report.fault, LinkFault::NoAnswer);
    QCOMPARE(report.stage, LinkStage::Identifying);
    QVERIFY(bench.tap.commands.size() <= 6);
}

void RadioLinkTest::babblingPortIsNoise() {
    const DeadPort port;
    QTimer babble;
    connect(&babble, &QTimer::timeout, this, [&] {
        const char noise[] = "\xA5\x5A\x01\x02 garbage \xA5";
        QVERIFY(::write(port.master, noise, sizeof noise) > 0);
    });
    babble.start(20);
    LinkBench bench;
    QCOMPARE(bench.link.interrogate(port.device).fault, LinkFault::Noise);
}

void RadioLinkTest::missingPortIsNamed() {
    LinkBench bench;
    const RadioReport report = bench.link.interrogate(QStringLiteral("/dev/no-such-port"));
    QCOMPARE(report.fault, LinkFault::PortMissing);
    QCOMPARE(report.stage, LinkStage::OpeningPort);
    QVERIFY(RadioReportText::fault(report).filled().contains(QStringLiteral("/dev/no-such-port")));
}

void RadioLinkTest::lockedPortIsBusy() {
    const DeadPort port;
    PortLock lock;
    QVERIFY(lock.take(port.device));
    LinkBench bench;
    const RadioReport report = bench.link.interrogate(port.device);
    QCOMPARE(report.fault, LinkFault::PortBusy);
    QVERIFY(RadioReportText::fault(report).filled().contains(QStringLiteral("ModemManager")));
    QVERIFY(bench.tap.commands.isEmpty());
}

void RadioLinkTest::everyFaultHasItsSentence() {
    for (int fault = int(LinkFault::PortMissing); fault <= int(LinkFault::AlreadyRunning); ++fault) {
        RadioReport report;
        report.fault = LinkFault(fault);
        report.details = {QStringLiteral("<1>"), QStringLiteral("<2>"), QStringLiteral("<3>")};
        const QString text = RadioReportText::fault(report).filled();
        QVERIFY2(!text.isEmpty() && !text.contains(QStringLiteral("%")), qPrintable(QString::number(fault)));
    }
    for (int stage = int(LinkStage::Identifying); stage < int(LinkStage::Done); ++stage)
        QVERIFY(!RadioReportText::stage(LinkStage(stage)).isEmpty());
}

QTEST_GUILESS_MAIN(RadioLinkTest)
#include "radio_link_test.moc"
