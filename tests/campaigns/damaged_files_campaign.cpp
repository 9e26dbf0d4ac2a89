#include "component_listener.h"
#include "component_state.h"
#include "file_mutants.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

// Damaged, foreign and maliciously consistent files: each is refused with one message, and the present data stays.
class DamagedFilesCampaign : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void badFilesAreRefusedAndChangeNothing();

  private:
    struct Window {
        explicit Window(const QString &folder)
            : transformer({.settingsFile = {},
                           .journalFolder = {},
                           .stateFolder = {},
                           .restoreFolder = {},
                           .dataFolder = folder}) {
            transformer.AddListener(&listener);
        }
        ComponentListener listener;
        TransformerComponent transformer;
    };
    static bool sameData(const DataSet &left, const DataSet &right);
    static QByteArray soundFile(const QString &path);
    static void write(const QString &path, const QByteArray &content);
};

bool DamagedFilesCampaign::sameData(const DataSet &left, const DataSet &right) {
    bool same = left.currentTier() == right.currentTier();
    for (qint32 tier = 0; tier < qint32(left.dictionary().tiers().size()); ++tier)
        same = same && left.tier(TierIndex(tier)).sameValues(right.tier(TierIndex(tier)));
    return same;
}

QByteArray DamagedFilesCampaign::soundFile(const QString &path) {
    Window window(path);
    window.transformer.ChangeTier(QStringLiteral("Standard"));
    bool ok = false;
    qint32 number = 0;
    for (const char *guide : {"ChannelID_q7r", "ChannelID_q7r", "NetworkID", "GroupID_q7r", "SignalSystemId_q7r"})
        window.transformer.AddRecord(QString::fromLatin1(guide), QString(), number, ok);
    window.transformer.SaveFile(path, QStringLiteral("sound"), 0, ok);
    QFile file(path);
    return ok && file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void DamagedFilesCampaign::write(const QString &path, const QByteArray &content) {
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), content.size());
}

void DamagedFilesCampaign::badFilesAreRefusedAndChangeNothing() {
    const QTemporaryDir folder;
    const QByteArray sound = soundFile(folder.filePath(QStringLiteral("sound.k4p")));
    QVERIFY(!sound.isEmpty());
    Window window(folder.path());
    window.transformer.ChangeTier(QStringLiteral("Advanced"));
    bool ok = false;
    window.transformer.SetValue(QStringLiteral("EconomyTimer"), 44, 0, true, ok);
    QVERIFY(ok);
    const DataSet before = window.transformer.state().document.data;
    const FileMutants mutants(window.transformer.dictionary(), sound);
    const QString path = folder.filePath(QStringLiteral("bad.k4p"));
    Campaign::Random random(4600);
    Campaign::Tally refused;
    Campaign::Tally sealedOrNot;
    const int wanted = Campaign::count(60, 500);
    int stillSound = 0;
    for (int number = 0; sealedOrNot.of(QStringLiteral("sealed")) + sealedOrNot.of(QStringLiteral("damaged")) < wanted;
         ++number) {
        const FileMutants::Mutant mutant = mutants.make(number, random);
        write(path, mutant.content);
        window.listener.clear();
        window.transformer.ReadFile(path, 0, 0, false);
        const bool opened = window.transformer.GetFileName() == path;
        if (opened && mutant.mayBeSound) {
            // Another valid file; the data is put back for the next one.
            ++stillSound;
            window.transformer.state().document.data = before;
            window.transformer.state().fileName.clear();
            continue;
        }
        const QByteArray what = mutant.kind.toUtf8() + " (number " + QByteArray::number(number) + ")";
        QVERIFY2(!opened, what);
        QVERIFY2(sameData(window.transformer.state().document.data, before), what);
        // Over unsaved data the question comes first, then the refusal.
        QVERIFY2(!window.listener.messages.isEmpty() && window.listener.messages.last().contains(path), what);
        refused.add(mutant.kind);
        sealedOrNot.add(number % 2 == 1 ? QStringLiteral("sealed") : QStringLiteral("damaged"));
    }
    qInfo("refused: %s; %s; %d changes gave another valid file", sealedOrNot.text().constData(),
          refused.text().constData(), stillSound);
    QVERIFY2(sealedOrNot.of(QStringLiteral("sealed")) * 5 >= wanted * 2, "too few with a fitting checksum");
}

QTEST_GUILESS_MAIN(DamagedFilesCampaign)
#include "damaged_files_campaign.moc"
