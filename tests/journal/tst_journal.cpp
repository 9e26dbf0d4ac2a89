#include "data_file_writer.h"
#include "dictionary_loader.h"
#include "edit_journal.h"
#include "journal_recovery.h"
#include "record_editor.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

namespace {
// A document, its journal, and edits of one field.
class Desk final : private JournalBaseSource {
  public:
    Desk(const Dictionary &dictionary, const QString &folder)
        : document(dictionary), journal(document, folder, *this),
          mTimer(dictionary.indexOf(QStringLiteral("EconomyTimer"))) {
        document.data.setCurrentTier(TierIndex(1));
    }

    void edit() {
        TierData &data = document.data.current();
        const qint32 next = (data.value(mTimer, {}).number() + 1) % 100;
        journal.record(data.tier(), RecordEditor(data).setValue(mTimer, {}, next));
    }

    DataDocument document;
    EditJournal journal;

  private:
    QString loadedFile() const override { return {}; }
    QByteArray storedText() const override { return {}; }
    QByteArray presentText() const override {
        const DataFileWriter writer(document);
        return writer.write(writer.header(QString(), QString()));
    }

    FieldIndex mTimer;
};
} // namespace

class tst_journal : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void initTestCase() { mDictionary = DictionaryLoader::loadCompiledIn(); }
    void revertKeepsWhatWasSavedBefore();
    void revertAfterASaveGoesBackToWhatWasSaved();
    void tornLastLineLosesOnlyItself();
    void runningWindowsJournalIsNotOffered();
    void endOfTheJournal_data();
    void endOfTheJournal();
    void failedWriteIsReportedOnce();

  private:
    std::unique_ptr<const Dictionary> mDictionary;
};

void tst_journal::revertKeepsWhatWasSavedBefore() {
    Desk desk(*mDictionary, QString());
    desk.edit();
    desk.journal.startForm();
    const TierData saved = desk.document.data.current();
    desk.edit();
    desk.journal.revertForm(desk.document.data.currentTier());
    QVERIFY(desk.document.data.current().sameValues(saved));
    QVERIFY(desk.journal.isDirty());
}

void tst_journal::revertAfterASaveGoesBackToWhatWasSaved() {
    Desk desk(*mDictionary, QString());
    desk.journal.startForm();
    desk.edit();
    desk.journal.allIsStored();
    const TierData saved = desk.document.data.current();
    desk.journal.revertForm(desk.document.data.currentTier());
    QVERIFY(desk.document.data.current().sameValues(saved));
    desk.edit();
    QVERIFY(desk.journal.isDirty());
    desk.journal.revertForm(desk.document.data.currentTier());
    QVERIFY(desk.document.data.current().sameValues(saved));
    QVERIFY(!desk.journal.isDirty());
}

void tst_journal::tornLastLineLosesOnlyItself() {
    QTemporaryDir folder;
    QString path;
    TierData before(*mDictionary, TierIndex(1));
    {
        Desk desk(*mDictionary, folder.path());
        for (int made = 0; made < 5; ++made)
            desk.edit();
        before = desk.document.data.current();
        desk.edit();
        path = desk.journal.filePath();
    }
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    file.resize(file.size() - 3);
    file.close();
    const std::vector<RecoveredWork> found = JournalRecovery::find(*mDictionary, folder.path());
    QCOMPARE(found.size(), std::size_t(1));
    QVERIFY(found.front().document.data.current().sameValues(before));
}

void tst_journal::runningWindowsJournalIsNotOffered() {
    QTemporaryDir folder;
    Desk running(*mDictionary, folder.path());
    running.edit();
    QVERIFY(QFile::exists(running.journal.filePath()));
    QVERIFY(JournalRecovery::find(*mDictionary, folder.path()).empty());
    QVERIFY(QFile::exists(running.journal.filePath()));
}

void tst_journal::endOfTheJournal_data() {
    QTest::addColumn<QString>("end");
    QTest::addColumn<bool>("stays");
    QTest::newRow("saved") << "save" << false;
    QTest::newRow("reverted to what was saved") << "revert" << false;
    QTest::newRow("shut down after the exit question") << "exit" << false;
    QTest::newRow("shut down without the question") << "shutdown" << true;
    QTest::newRow("edit after the exit question") << "exit and edit" << true;
    QTest::newRow("object gone without a shut-down") << "abrupt" << true;
}

void tst_journal::endOfTheJournal() {
    QFETCH(QString, end);
    QFETCH(bool, stays);
    QTemporaryDir folder;
    {
        Desk desk(*mDictionary, folder.path());
        desk.edit();
        if (end == QStringLiteral("save"))
            desk.journal.allIsStored();
        if (end == QStringLiteral("revert"))
            desk.journal.revertForm(TierIndex(1));
        if (end.startsWith(QStringLiteral("exit")))
            desk.journal.exitIsKnown();
        if (end == QStringLiteral("exit and edit"))
            desk.edit();
        if (end != QStringLiteral("abrupt"))
            desk.journal.shutDown();
    }
    QCOMPARE(!JournalFile::inFolder(folder.path()).isEmpty(), stays);
}

void tst_journal::failedWriteIsReportedOnce() {
    QTemporaryDir folder;
    QFile blocker(folder.filePath(QStringLiteral("file")));
    QVERIFY(blocker.open(QIODevice::WriteOnly));
    Desk desk(*mDictionary, folder.filePath(QStringLiteral("file/journals")));
    desk.edit();
    QVERIFY(desk.journal.takeWriteFailure());
    desk.edit();
    QVERIFY(!desk.journal.takeWriteFailure());
    QVERIFY(desk.journal.formIsDirty());
}

QTEST_GUILESS_MAIN(tst_journal)
#include "tst_journal.moc"
