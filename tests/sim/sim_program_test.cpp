#include "rows.h"
#include "sim_process.h"

#include <QFile>
#include <QFileInfo>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {
const QString kLink = u"--link"_s;
} // namespace

class SimProgramTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void linkStandsFromReadyToTheEnd() {
        SimProcess sim;
        QVERIFY(sim.start({}));
        QVERIFY(QFileInfo(sim.link()).isSymLink());
        QVERIFY(QFileInfo::exists(sim.link()));
        sim.terminate();
        QCOMPARE(sim.process().exitStatus(), QProcess::NormalExit);
        QCOMPARE(sim.process().exitCode(), 0);
        QVERIFY(!QFileInfo(sim.link()).isSymLink());
        QCOMPARE(sim.count(u"bytes"_s), 0);
    }

    void leftoverLinkIsReplacedButNoFile() {
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

    void wrongCommandLinesAreRefused() {
        const auto with = [](const char *name, const char *value) {
            return QStringList{kLink, u"x"_s, QString::fromLatin1(name), QString::fromLatin1(value)};
        };

        for (const auto &[words] : Rows<QStringList>{
                 {"no link", {u"--full-speed"_s}},
                 {"link without a path", {kLink}},
                 {"unknown option", with("--speed", "1")},
                 {"unknown tier", with("--tier", "Deluxe")},
                 {"tier in another case", with("--tier", "basic")},
                 {"unknown band", with("--band", "99")},
                 {"nine-digit serial number", with("--serial", "100000000")},
                 {"probability above one", with("--drop", "1.5")},
                 {"probability not a number", with("--corrupt", "often")},
                 {"negative delay", with("--delay", "-1")},
                 {"missing value", {kLink, u"x"_s, u"--seed"_s}},
             }) {
            const QTemporaryDir folder;
            QStringList arguments = words;
            if (arguments.value(1) == u"x"_s)
                arguments[1] = folder.filePath(u"radio"_s);
            SimProcess sim;
            QVERIFY(!sim.startPlain(arguments));
            sim.process().waitForFinished();
            QCOMPARE(sim.process().exitCode(), 2);
            QVERIFY(sim.process().readAllStandardError().startsWith("kx4600sim: "));
            QVERIFY(!QFileInfo(folder.filePath(u"radio"_s)).isSymLink());
        }
    }

    void imageOfAnotherTierIsRefused() {
        SimProcess sim;
        const QStringList image{u"--image"_s, sim.image(), u"--tier"_s};
        QVERIFY(sim.start(image + QStringList{u"Basic"_s}));
        sim.kill();
        const QByteArray before = sim.activeBank();
        QVERIFY(!before.isEmpty());
        QVERIFY(!sim.start(image + QStringList{u"Advanced"_s}));
        sim.process().waitForFinished();
        QCOMPARE(sim.process().exitCode(), 3);
        QVERIFY(sim.start(image + QStringList{u"Basic"_s}));
        QCOMPARE(sim.activeBank(), before);
    }
};

QTEST_GUILESS_MAIN(SimProgramTest)
#include "sim_program_test.moc"
