#include "component_listener.h"
#include "journal_file.h"
#include "restore_points.h"
#include "value_text.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

class tst_documents : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup();
    void savedFileComesBackAndClearsTheMarks();
    void failedSaveLeavesTheDataDirty();
    void damagedFileLeavesThePresentData();
    void otherFileOverUnsavedDataAsks_data();
    void otherFileOverUnsavedDataAsks();
    void fileChangedOnDiskIsNotReplacedUnasked();
    void olderVersionNamesWhatIsLost();
    void squirtFileIsNoDocument();
    void killedWindowsWorkIsOfferedAtTheNextStart_data();
    void killedWindowsWorkIsOfferedAtTheNextStart();
    void defaultsOfOneTierLeaveTheOthers();
    void copyToOtherTierListsWhatHasNoPlace();

  private:
    [[nodiscard]] std::unique_ptr<TransformerComponent> window() {
        auto component = std::make_unique<TransformerComponent>(ComponentPlaces{.settingsFile = path("settings.ini"),
                                                                                .journalFolder = path("state"),
                                                                                .stateFolder = path("state"),
                                                                                .restoreFolder = path("restore"),
                                                                                .dataFolder = {}});
        component->SetCallerVersion(QStringLiteral("1.02.00.0034|KX4600"));
        component->AddListener(&mListener);
        return component;
    }
    [[nodiscard]] QString path(const char *name) const { return mFolder->filePath(QString::fromLatin1(name)); }
    static bool set(Transformer &component, const char *uiid, const QVariant &value) {
        bool ok = false;
        component.SetValue(QString::fromLatin1(uiid), value, 1, true, ok);
        return ok;
    }
    static QString get(Transformer &component, const char *uiid) {
        return ValueText::of(component.GetValue(QString::fromLatin1(uiid), 1));
    }
    static bool save(Transformer &component, const QString &fileName, qint32 version = 0) {
        bool ok = false;
        component.SaveFile(fileName, QStringLiteral("Taxi fleet"), version, ok);
        return ok;
    }

    std::unique_ptr<QTemporaryDir> mFolder;
    ComponentListener mListener;
    std::unique_ptr<TransformerComponent> mComponent;
};

void tst_documents::init() {
    mFolder = std::make_unique<QTemporaryDir>();
    mComponent = window();
    mListener.clear();
    mListener.answer = 6;
}

void tst_documents::cleanup() { mComponent.reset(); }

void tst_documents::savedFileComesBackAndClearsTheMarks() {
    const QString file = path("a.k4p");
    mComponent->ChangeTier(QStringLiteral("Standard"));
    QVERIFY(set(*mComponent, "EconomyTimer", 33));
    QVERIFY(save(*mComponent, file));
    QVERIFY(!mComponent->GetDataIsDirty());
    QCOMPARE(mComponent->GetFileName(), file);
    QVERIFY(JournalFile::inFolder(path("state")).isEmpty());

    const std::unique_ptr<TransformerComponent> other = window();
    mListener.clear();
    other->ReadFile(file, 0, 0, false);
    QCOMPARE(mListener.of(QStringLiteral("ChangeToTier")), QStringList{QStringLiteral("ChangeToTier Standard")});
    QCOMPARE(get(*other, "EconomyTimer"), QStringLiteral("33"));
    QVERIFY(!other->GetDataIsDirty());
    QString model, database, application, networks, comment, reserved;
    bool known = false;
    other->GetFileDetails(file, model, database, application, networks, comment, reserved, reserved, reserved, known);
    QVERIFY(known);
    QCOMPARE(QStringList({model, database, application, networks, comment}),
             QStringList({QStringLiteral("KX4600 Standard"), QStringLiteral("3.20"), QStringLiteral("1.02.00.0034"),
                          QStringLiteral("1"), QStringLiteral("Taxi fleet")}));
}

void tst_documents::failedSaveLeavesTheDataDirty() {
    QVERIFY(set(*mComponent, "EconomyTimer", 33));
    QVERIFY(!save(*mComponent, path("missing/a.k4p")));
    QVERIFY(mComponent->GetDataIsDirty());
    QCOMPARE(mComponent->GetFileName(), QString());
    QCOMPARE(mListener.messages.size(), 1);
    QVERIFY(mListener.messages.first().contains(path("missing/a.k4p")));
    QCOMPARE(JournalFile::inFolder(path("state")).size(), 1);
}

void tst_documents::damagedFileLeavesThePresentData() {
    const QString file = path("a.k4p");
    QVERIFY(save(*mComponent, file));
    QFile damaged(file);
    QVERIFY(damaged.open(QIODevice::ReadWrite));
    damaged.seek(1000);
    damaged.write("#");
    damaged.close();
    const std::unique_ptr<TransformerComponent> other = window();
    QVERIFY(set(*other, "EconomyTimer", 44));
    mListener.clear();
    other->ReadFile(file, 0, 0, false);
    QCOMPARE(mListener.messages.size(), 2); // the question, then the refusal
    QVERIFY(mListener.messages.last().contains(file));
    QVERIFY(mListener.of(QStringLiteral("ChangeToTier")).isEmpty());
    QCOMPARE(get(*other, "EconomyTimer"), QStringLiteral("44"));
    QVERIFY(other->GetDataIsDirty());
    QCOMPARE(other->GetFileName(), QString());
}

void tst_documents::otherFileOverUnsavedDataAsks_data() {
    QTest::addColumn<bool>("sameFile");
    QTest::addColumn<qint32>("answer");
    QTest::addColumn<int>("questions");
    QTest::addColumn<QString>("timer");
    QTest::newRow("other file, yes") << false << 6 << 1 << "10";
    QTest::newRow("other file, no") << false << 7 << 1 << "44";
    QTest::newRow("loaded file") << true << 7 << 0 << "10";
}

void tst_documents::otherFileOverUnsavedDataAsks() {
    QFETCH(bool, sameFile);
    QFETCH(qint32, answer);
    QFETCH(int, questions);
    QFETCH(QString, timer);
    QVERIFY(save(*mComponent, path("a.k4p")));
    QVERIFY(save(*mComponent, path("b.k4p")));
    QVERIFY(set(*mComponent, "EconomyTimer", 44));
    mListener.clear();
    mListener.answer = answer;
    mComponent->ReadFile(path(sameFile ? "b.k4p" : "a.k4p"), 0, 0, false);
    QCOMPARE(mListener.messages.size(), questions);
    QCOMPARE(get(*mComponent, "EconomyTimer"), timer);
}

void tst_documents::fileChangedOnDiskIsNotReplacedUnasked() {
    const QString file = path("a.k4p");
    QVERIFY(save(*mComponent, file));
    const std::unique_ptr<TransformerComponent> other = window();
    QVERIFY(set(*other, "EconomyTimer", 55));
    QVERIFY(save(*other, file));
    mListener.clear();
    mListener.answer = 7;
    QVERIFY(!save(*mComponent, file));
    QCOMPARE(mListener.messages.size(), 1);
    mListener.answer = 6;
    QVERIFY(save(*mComponent, file));
    QVERIFY(save(*mComponent, file));
    QCOMPARE(mListener.messages.size(), 2);
}

void tst_documents::olderVersionNamesWhatIsLost() {
    QCOMPARE(mComponent->GetVersionLevel(), 2);
    QVERIFY(mComponent->GetProgramAsAvailable());
    QVERIFY(set(*mComponent, "ChannelCompanding", 1));
    QVERIFY(set(*mComponent, "TxPower_q7r", 0)); // an item that only the newer version has
    mListener.clear();
    mListener.answer = 7;
    for (const char *const file : {"old.k4p", "old.sqt"}) {
        QVERIFY(!save(*mComponent, path(file), 1));
        QVERIFY2(mListener.messages.takeFirst().contains(
                     QStringLiteral("not be stored: Tx Power (Channels), Companding (Channels).")),
                 file);
        QVERIFY(!QFile::exists(path(file)));
    }
    QCOMPARE(mComponent->GetVersionLevel(), 2);
    mListener.answer = 6;
    QVERIFY(save(*mComponent, path("old.k4p"), 1));
    QCOMPARE(mComponent->GetVersionLevel(), 1);
    QVERIFY(get(*mComponent, "TxPower_q7r") != QStringLiteral("0"));
    QVERIFY(!mComponent->GetProgramAsAvailable());
    QVERIFY(!mComponent->GetFieldEnabled(QStringLiteral("ChannelCompanding"), 1));
    QVERIFY(!save(*mComponent, path("new.k4p"), 2));
}

void tst_documents::squirtFileIsNoDocument() {
    QVERIFY(set(*mComponent, "EconomyTimer", 44));
    QVERIFY(save(*mComponent, path("a.sqt")));
    QVERIFY(mComponent->GetDataIsDirty());
    QCOMPARE(mComponent->GetFileName(), QString());
    mListener.clear();
    mComponent->ReadFile(path("a.sqt"), 0, 0, false);
    QVERIFY(mListener.messages.last().contains(QStringLiteral("program it into a radio")));
}

void tst_documents::killedWindowsWorkIsOfferedAtTheNextStart_data() {
    QTest::addColumn<bool>("onFile");
    QTest::addColumn<bool>("taken");
    QTest::newRow("new data, taken") << false << true;
    QTest::newRow("new data, declined") << false << false;
    QTest::newRow("loaded file, taken") << true << true;
    QTest::newRow("loaded file, declined") << true << false;
}

void tst_documents::killedWindowsWorkIsOfferedAtTheNextStart() {
    QFETCH(bool, onFile);
    QFETCH(bool, taken);
    const QString file = path("a.k4p");
    QVERIFY(save(*mComponent, file));
    const pid_t child = ::fork();
    if (child == 0) {
        const std::unique_ptr<TransformerComponent> victim = window();
        if (onFile)
            victim->ReadFile(file, 0, 0, false);
        victim->ChangeTier(QStringLiteral("Advanced"));
        qint32 added = 0;
        bool ok = false;
        set(*victim, "EconomyTimer", 77);
        victim->AddRecord(QStringLiteral("ChannelID_q7r"), QString(), added, ok);
        ::raise(SIGKILL);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    QVERIFY(WIFSIGNALED(status));

    const std::unique_ptr<TransformerComponent> next = window();
    mListener.clear();
    mListener.answer = taken ? 6 : 7;
    next->StartUp();
    QCOMPARE(mListener.of(QStringLiteral("ChangeToTier")).size(), taken ? 1 : 0);
    QCOMPARE(get(*next, "EconomyTimer"), taken ? QStringLiteral("77") : QStringLiteral("10"));
    QCOMPARE(next->GetDataIsDirty(), taken);
    if (taken) {
        QCOMPARE(next->GetCurrentTier(), QStringLiteral("Advanced"));
        QCOMPARE(next->GetNumberOfRecords(QStringLiteral("ChannelID_q7r")), 2);
        QCOMPARE(next->GetFileName(), onFile ? file : QString());
        QCOMPARE(JournalFile::inFolder(path("state")).size(), 1); // the work is protected again
        return;
    }
    QVERIFY(JournalFile::inFolder(path("state")).isEmpty());
    const RestorePoints points(path("restore"));
    QCOMPARE(points.serialNumbers().size(), 1);
    next->ReadFile(points.of(points.serialNumbers().first()).first(), 0, 0, false);
    QCOMPARE(get(*next, "EconomyTimer"), QStringLiteral("77"));
}

void tst_documents::defaultsOfOneTierLeaveTheOthers() {
    QVERIFY(set(*mComponent, "EconomyTimer", 20));
    mComponent->ChangeTier(QStringLiteral("Advanced"));
    QVERIFY(set(*mComponent, "EconomyTimer", 30));
    mComponent->ReloadDefaults(QStringLiteral("Advanced"));
    QCOMPARE(get(*mComponent, "EconomyTimer"), QStringLiteral("10"));
    QVERIFY(mComponent->GetDataIsDirty()); // the other tier's edit
    mComponent->ChangeTier(QStringLiteral("Basic"));
    QCOMPARE(get(*mComponent, "EconomyTimer"), QStringLiteral("20"));
}

void tst_documents::copyToOtherTierListsWhatHasNoPlace() {
    mComponent->ChangeTier(QStringLiteral("Advanced"));
    QVERIFY(set(*mComponent, "EconomyTimer", 66));
    mListener.clear();
    mComponent->CopyFieldToTier(QStringLiteral("EconomyTimer"), QStringLiteral("Basic"));
    QVERIFY(mListener.messages.isEmpty());
    mComponent->CopyFieldToTier(QStringLiteral("IsDataChannel_q7r"), QStringLiteral("Basic"));
    QCOMPARE(mListener.messages.size(), 1);
    QVERIFY(mListener.messages.first().contains(QStringLiteral("Data Channel")));
    // A field of a navigator: the record of the same number; a grid's columns: all of them, identities at once.
    const QString id = QStringLiteral("ChannelID_q7r");
    qint32 added = 0;
    bool ok = false;
    mComponent->AddRecord(id, QString(), added, ok);
    mComponent->SetValue(id, QStringLiteral("9"), 1, true, ok);
    mComponent->SetValue(id, QStringLiteral("1"), 2, true, ok);
    mComponent->SetValue(QStringLiteral("CurrentChannelNr"), 2, 0, true, ok);
    QVERIFY(set(*mComponent, "TxPower_q7r", 1));
    mListener.clear();
    mComponent->CopyFieldToTier(QStringLiteral("TxPower_q7r"), QStringLiteral("Basic"));
    QVERIFY2(mListener.messages.takeLast().endsWith(QStringLiteral("not copied: Tx Power (2).")), "no record 2 there");
    mComponent->CopyFieldToTier(QStringLiteral("ChannelID_q7r|TxPower_q7r"), QStringLiteral("Basic"));
    QVERIFY(mListener.messages.takeLast().endsWith(QStringLiteral("not copied: ID (2), Tx Power (2).")));
    mComponent->ChangeTier(QStringLiteral("Basic"));
    QCOMPARE(get(*mComponent, "ChannelID_q7r"), QStringLiteral("9"));
    QCOMPARE(get(*mComponent, "TxPower_q7r"), QStringLiteral("1"));
    QCOMPARE(get(*mComponent, "EconomyTimer"), QStringLiteral("66"));
}

QTEST_GUILESS_MAIN(tst_documents)
#include "tst_documents.moc"
