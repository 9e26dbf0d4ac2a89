#include "component_listener.h"
#include "journal_file.h"
#include "restore_points.h"
#include "rows.h"
#include "value_text.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

class tst_documents : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() {
        mFolder = std::make_unique<QTemporaryDir>();
        mComponent = window();
        mListener.clear();
        mListener.answer = 6;
    }

    void cleanup() { mComponent.reset(); }

    void savedFileComesBackAndClearsTheMarks() {
        const QString file = path("a.k4p");
        mComponent->ChangeTier(u"Standard"_s);
        QVERIFY(set(*mComponent, "EconomyTimer", 33));
        QVERIFY(save(*mComponent, file));
        QVERIFY(!mComponent->GetDataIsDirty());
        QCOMPARE(mComponent->GetFileName(), file);
        QVERIFY(JournalFile::inFolder(path("state")).isEmpty());

        const std::unique_ptr<TransformerComponent> other = window();
        mListener.clear();
        other->ReadFile(file, 0, 0, false);
        QCOMPARE(mListener.of(u"ChangeToTier"_s), QStringList{u"ChangeToTier Standard"_s});
        QCOMPARE(get(*other, "EconomyTimer"), u"33"_s);
        QVERIFY(!other->GetDataIsDirty());
        QString model, database, application, networks, comment, reserved;
        bool known = false;
        other->GetFileDetails(file, model, database, application, networks, comment, reserved, reserved, reserved,
                              known);
        QVERIFY(known);
        QCOMPARE(QStringList({model, database, application, networks, comment}),
                 QStringList({u"KX4600 Standard"_s, u"3.20"_s, u"1.02.00.0034"_s, u"1"_s, u"Taxi fleet"_s}));
    }

    void failedSaveLeavesTheDataDirty() {
        QVERIFY(set(*mComponent, "EconomyTimer", 33));
        QVERIFY(!save(*mComponent, path("missing/a.k4p")));
        QVERIFY(mComponent->GetDataIsDirty());
        QCOMPARE(mComponent->GetFileName(), QString());
        QCOMPARE(mListener.messages.size(), 1);
        QVERIFY(mListener.messages.first().contains(path("missing/a.k4p")));
        QCOMPARE(JournalFile::inFolder(path("state")).size(), 1);
    }

    void otherFileOverUnsavedDataAsks() {
        for (const auto &[sameFile, answer, questions, timer] : Rows<bool, qint32, int, QString>{
                 {"other file, yes", false, 6, 1, u"10"_s},
                 {"other file, no", false, 7, 1, u"44"_s},
                 {"loaded file", true, 7, 0, u"10"_s},
             }) {
            cleanup();
            init();
            QVERIFY(save(*mComponent, path("a.k4p")));
            QVERIFY(save(*mComponent, path("b.k4p")));
            QVERIFY(set(*mComponent, "EconomyTimer", 44));
            mListener.clear();
            mListener.answer = answer;
            mComponent->ReadFile(path(sameFile ? "b.k4p" : "a.k4p"), 0, 0, false);
            QCOMPARE(mListener.messages.size(), questions);
            QCOMPARE(get(*mComponent, "EconomyTimer"), timer);
        }
    }

    void fileChangedOnDiskIsNotReplacedUnasked() {
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

    void olderVersionNamesWhatIsLost() {
        QCOMPARE(mComponent->GetVersionLevel(), 2);
        QVERIFY(mComponent->GetProgramAsAvailable());
        QVERIFY(set(*mComponent, "ChannelCompanding", 1));
        QVERIFY(set(*mComponent, "TxPower_q7r", 0)); // an item that only the newer version has
        mListener.clear();
        mListener.answer = 7;
        for (const char *const file : {"old.k4p", "old.sqt"}) {
            QVERIFY(!save(*mComponent, path(file), 1));
            QVERIFY2(mListener.messages.takeFirst().contains(
                         u"not be stored: Tx Power (Channels), Companding (Channels)."_s),
                     file);
            QVERIFY(!QFile::exists(path(file)));
        }
        QCOMPARE(mComponent->GetVersionLevel(), 2);
        mListener.answer = 6;
        QVERIFY(save(*mComponent, path("old.k4p"), 1));
        QCOMPARE(mComponent->GetVersionLevel(), 1);
        QVERIFY(get(*mComponent, "TxPower_q7r") != u"0"_s);
        QVERIFY(!mComponent->GetProgramAsAvailable());
        QVERIFY(!mComponent->GetFieldEnabled(u"ChannelCompanding"_s, 1));
        QVERIFY(!save(*mComponent, path("new.k4p"), 2));
    }

    void squirtFileIsNoDocument() {
        QVERIFY(set(*mComponent, "EconomyTimer", 44));
        QVERIFY(save(*mComponent, path("a.sqt")));
        QVERIFY(mComponent->GetDataIsDirty());
        QCOMPARE(mComponent->GetFileName(), QString());
        mListener.clear();
        mComponent->ReadFile(path("a.sqt"), 0, 0, false);
        QVERIFY(mListener.messages.last().contains(u"program it into a radio"_s));
    }

    void killedWindowsWorkIsOfferedAtTheNextStart() {
        for (const auto &[onFile, taken] : Rows<bool, bool>{
                 {"new data, taken", false, true},
                 {"new data, declined", false, false},
                 {"loaded file, taken", true, true},
                 {"loaded file, declined", true, false},
             }) {
            cleanup();
            init();
            const QString file = path("a.k4p");
            QVERIFY(save(*mComponent, file));
            const pid_t child = ::fork();
            if (child == 0) {
                const std::unique_ptr<TransformerComponent> victim = window();
                if (onFile)
                    victim->ReadFile(file, 0, 0, false);
                victim->ChangeTier(u"Advanced"_s);
                qint32 added = 0;
                bool ok = false;
                set(*victim, "EconomyTimer", 77);
                victim->AddRecord(u"ChannelID_q7r"_s, QString(), added, ok);
                ::raise(SIGKILL);
            }
            int status = 0;
            ::waitpid(child, &status, 0);
            QVERIFY(WIFSIGNALED(status));

            const std::unique_ptr<TransformerComponent> next = window();
            mListener.clear();
            mListener.answer = taken ? 6 : 7;
            next->StartUp();
            QCOMPARE(mListener.of(u"ChangeToTier"_s).size(), taken ? 1 : 0);
            QCOMPARE(get(*next, "EconomyTimer"), taken ? u"77"_s : u"10"_s);
            QCOMPARE(next->GetDataIsDirty(), taken);
            if (taken) {
                QCOMPARE(next->GetCurrentTier(), u"Advanced"_s);
                QCOMPARE(next->GetNumberOfRecords(u"ChannelID_q7r"_s), 2);
                QCOMPARE(next->GetFileName(), onFile ? file : QString());
                QCOMPARE(JournalFile::inFolder(path("state")).size(), 1); // the work is protected again
                continue;
            }
            QVERIFY(JournalFile::inFolder(path("state")).isEmpty());
            const RestorePoints points(path("restore"));
            QCOMPARE(points.serialNumbers().size(), 1);
            next->ReadFile(points.of(points.serialNumbers().first()).first(), 0, 0, false);
            QCOMPARE(get(*next, "EconomyTimer"), u"77"_s);
        }
    }

    void defaultsOfOneTierLeaveTheOthers() {
        QVERIFY(set(*mComponent, "EconomyTimer", 20));
        mComponent->ChangeTier(u"Advanced"_s);
        QVERIFY(set(*mComponent, "EconomyTimer", 30));
        mComponent->ReloadDefaults(u"Advanced"_s);
        QCOMPARE(get(*mComponent, "EconomyTimer"), u"10"_s);
        QVERIFY(mComponent->GetDataIsDirty()); // the other tier's edit
        mComponent->ChangeTier(u"Basic"_s);
        QCOMPARE(get(*mComponent, "EconomyTimer"), u"20"_s);
    }

    void copyToOtherTierListsWhatHasNoPlace() {
        mComponent->ChangeTier(u"Advanced"_s);
        QVERIFY(set(*mComponent, "EconomyTimer", 66));
        mListener.clear();
        mComponent->CopyFieldToTier(u"EconomyTimer"_s, u"Basic"_s);
        QVERIFY(mListener.messages.isEmpty());
        mComponent->CopyFieldToTier(u"IsDataChannel_q7r"_s, u"Basic"_s);
        QCOMPARE(mListener.messages.size(), 1);
        QVERIFY(mListener.messages.first().contains(u"Data Channel"_s));
        // A field of a navigator: the record of the same number; a grid's columns: all of them, identities at once.
        const QString id = u"ChannelID_q7r"_s;
        qint32 added = 0;
        bool ok = false;
        mComponent->AddRecord(id, QString(), added, ok);
        mComponent->SetValue(id, u"9"_s, 1, true, ok);
        mComponent->SetValue(id, u"1"_s, 2, true, ok);
        mComponent->SetValue(u"CurrentChannelNr"_s, 2, 0, true, ok);
        QVERIFY(set(*mComponent, "TxPower_q7r", 1));
        mListener.clear();
        mComponent->CopyFieldToTier(u"TxPower_q7r"_s, u"Basic"_s);
        QVERIFY2(mListener.messages.takeLast().endsWith(u"not copied: Tx Power (2)."_s), "no record 2 there");
        mComponent->CopyFieldToTier(u"ChannelID_q7r|TxPower_q7r"_s, u"Basic"_s);
        QVERIFY(mListener.messages.takeLast().endsWith(u"not copied: ID (2), Tx Power (2)."_s));
        mComponent->ChangeTier(u"Basic"_s);
        QCOMPARE(get(*mComponent, "ChannelID_q7r"), u"9"_s);
        QCOMPARE(get(*mComponent, "TxPower_q7r"), u"1"_s);
        QCOMPARE(get(*mComponent, "EconomyTimer"), u"66"_s);
    }

  private:
    [[nodiscard]] std::unique_ptr<TransformerComponent> window() {
        auto component = std::make_unique<TransformerComponent>(ComponentPlaces{.settingsFile = path("settings.ini"),
                                                                                .journalFolder = path("state"),
                                                                                .stateFolder = path("state"),
                                                                                .restoreFolder = path("restore"),
                                                                                .dataFolder = {}});
        component->SetCallerVersion(u"1.02.00.0034|KX4600"_s);
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
        component.SaveFile(fileName, u"Taxi fleet"_s, version, ok);
        return ok;
    }

    std::unique_ptr<QTemporaryDir> mFolder;
    ComponentListener mListener;
    std::unique_ptr<TransformerComponent> mComponent;
};

QTEST_GUILESS_MAIN(tst_documents)
#include "tst_documents.moc"
