#include "sim_process.h"

#include <QFile>
#include <QFileInfo>
#include <QTest>

namespace {
const QString kLink = QStringLiteral("--link");
} // namespace

class SimProgramTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void linkStandsFromReadyToTheEnd();
    void leftoverLinkIsReplacedButNoFile();
    void wrongCommandLinesAreRefused_data();
    void wrongCommandLinesAreRefused();
    void imageOfAnotherTierIsRefused();
    void factoryImagesDifferByTierAndBand();
};

void SimProgramTest::linkStandsFromReadyToTheEnd() {
    SimProcess sim;
    QVERIFY(sim.start({}));
    QVERIFY(QFileInfo(sim.link()).isSymLink());
    QVERIFY(QFileInfo::exists(sim.link()));
    sim.terminate();
    QCOMPARE(sim.process().exitStatus(), QProcess::NormalExit);
    QCOMPARE(sim.process().exitCode(), 0);
    QVERIFY(!QFileInfo(sim.link()).isSymLink());
    QCOMPARE(sim.count(QStringLiteral("bytes")), 0);
}

void SimProgramTest::leftoverLinkIsReplacedButNoFile() {
    SimProcess sim;
    QVERIFY(sim.start({}));
    sim.kill();
    QVERIFY(QFileInfo(sim.link()).isSymLink());
    QVERIFY(sim.start({}));
    sim.terminate();
    QFile file(sim.link());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("precious");
    file.close();
    QVERIFY(!sim.start({}));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("precious"));
}

void SimProgramTest::wrongCommandLinesAreRefused_data() {
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("no link") << QStringList{QStringLiteral("--full-speed")};
    QTest::newRow("link without a path") << QStringList{kLink};
    const auto with = [](const char *name, const char *value) {
        return QStringList{kLink, QStringLiteral("x"), QString::fromLatin1(name), QString::fromLatin1(value)};
    };
    QTest::newRow("unknown option") << with("--speed", "1");
    QTest::newRow("unknown tier") << with("--tier", "Deluxe");
    QTest::newRow("tier in another case") << with("--tier", "basic");
    QTest::newRow("unknown band") << with("--band", "99");
    QTest::newRow("nine-digit serial number") << with("--serial", "100000000");
    QTest::newRow("probability above one") << with("--drop", "1.5");
    QTest::newRow("probability not a number") << with("--corrupt", "often");
    QTest::newRow("negative delay") << with("--delay", "-1");
    QTest::newRow("missing value") << QStringList{kLink, QStringLiteral("x"), QStringLiteral("--seed")};
}

void SimProgramTest::wrongCommandLinesAreRefused() {
    QFETCH(QStringList, arguments);
    const QTemporaryDir folder;
    if (arguments.value(1) == QStringLiteral("x"))
        arguments[1] = folder.filePath(QStringLiteral("radio"));
    SimProcess sim;
    QVERIFY(!sim.startPlain(arguments));
    sim.process().waitForFinished();
    QCOMPARE(sim.process().exitCode(), 2);
    QVERIFY(sim.process().readAllStandardError().startsWith("kx4600sim: "));
    QVERIFY(!QFileInfo(folder.filePath(QStringLiteral("radio"))).isSymLink());
}

void SimProgramTest::imageOfAnotherTierIsRefused() {
    SimProcess sim;
    const QStringList image{QStringLiteral("--image"), sim.image(), QStringLiteral("--tier")};
    QVERIFY(sim.start(image + QStringList{QStringLiteral("Basic")}));
    sim.kill();
    const QByteArray before = sim.activeBank();
    QVERIFY(!before.isEmpty());
    QVERIFY(!sim.start(image + QStringList{QStringLiteral("Advanced")}));
    sim.process().waitForFinished();
    QCOMPARE(sim.process().exitCode(), 3);
    QVERIFY(sim.start(image + QStringList{QStringLiteral("Basic")}));
    QCOMPARE(sim.activeBank(), before);
}

void SimProgramTest::factoryImagesDifferByTierAndBand() {
    QList<QByteArray> banks;
    const QList<QStringList> radios{{QStringLiteral("Basic"), QStringLiteral("1")},
                                    {QStringLiteral("Standard"), QStringLiteral("1")},
                                    {QStringLiteral("Advanced"), QStringLiteral("1")},
                                    {QStringLiteral("Advanced"), QStringLiteral("2")}};
    for (const QStringList &radio : radios) {
        SimProcess sim;
        QVERIFY(sim.start({QStringLiteral("--image"), sim.image(), QStringLiteral("--tier"), radio[0],
                           QStringLiteral("--band"), radio[1]}));
        const QByteArray bank = sim.activeBank();
        QVERIFY(!bank.isEmpty());
        QVERIFY(!banks.contains(bank));
        banks << bank;
    }
    QVERIFY(banks[0].size() < banks[1].size() && banks[1].size() < banks[2].size());
    QCOMPARE(banks[2].size(), banks[3].size());
}

QTEST_GUILESS_MAIN(SimProgramTest)
#include "sim_program_test.moc"
