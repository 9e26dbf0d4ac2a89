#include "data_file_writer.h"
#include "dictionary_loader.h"
#include "edit_journal.h"
#include "journal_recovery.h"
#include "record_editor.h"

#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

namespace {
// A document, its journal, and edits by a plain random walk.
class Desk final : private JournalBaseSource {
  public:
    Desk(const Dictionary &dictionary, const QString &folder) : document(dictionary), journal(document, folder, *this) {
        document.data.setCurrentTier(TierIndex(1));
    }

    // One random edit or record operation; true if it changed something.
    bool edit(QRandomGenerator &random) {
        TierData &data = document.data.current();
        const Dictionary &dictionary = document.data.dictionary();
        const RecordStructure &structure =
            dictionary.structure(StructureIndex(random.bounded(int(dictionary.structures().size()))));
        const std::vector<RecordAddress> records = data.records(structure.index);
        Changes changes;
        RecordEditor editor(data);
        const int what = random.bounded(10);
        const RecordAddress record =
            records.empty() ? RecordAddress{} : records[std::size_t(random.bounded(int(records.size())))];
        if (what == 0)
            changes = editor.insertRecord(structure.index, {record.parent, qMax(1, record.number)}).changes;
        else if (what == 1 && !records.empty())
            changes = editor.deleteRecord(structure.index, record).changes;
        else if (what == 2 && !records.empty())
            changes = editor.copyRecord(structure.index, record).changes;
        else if (!records.empty() && !structure.stored.empty())
            changes = setSomething(editor, structure, record, random);
        journal.record(data.tier(), changes);
        return !changes.empty();
    }

    DataDocument document;
    EditJournal journal;

  private:
    Changes setSomething(RecordEditor &editor, const RecordStructure &structure, RecordAddress record,
                         QRandomGenerator &random) const {
        const FieldDefinition &field = document.data.dictionary().field(
            structure.stored[std::size_t(random.bounded(int(structure.stored.size())))]);
        if (field.kind == FieldKind::Flag)
            return editor.setValue(field.index, record, random.bounded(2));
        if (field.hasItems())
            return editor.setValue(field.index, record,
                                   field.items[std::size_t(random.bounded(int(field.items.size())))].value);
        if (field.kind == FieldKind::Number)
            return editor.setValue(field.index, record,
                                   random.bounded(2) == 0 ? field.limits.minimum : field.limits.maximum);
        if (field.isTextual() && field.length > 0)
            return editor.setValue(field.index, record,
                                   QString(field.length, field.mask.isEmpty() ? u'A' : field.mask.front()));
        return {};
    }
    QString loadedFile() const override { return {}; }
    QByteArray storedText() const override { return {}; }
    QByteArray presentText() const override {
        const DataFileWriter writer(document);
        return writer.write(writer.header(QString(), QString()));
    }
};
} // namespace

class tst_journal : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void initTestCase() { mDictionary = DictionaryLoader::loadCompiledIn(); }
    void revertGivesTheStateBeforeTheForm();
    void revertKeepsWhatWasSavedBefore();
    void revertAfterASaveGoesBackToWhatWasSaved();
    void killedProcessLosesNoEdit();
    void tornLastLineLosesOnlyItself();
    void runningWindowsJournalIsNotOffered();
    void endOfTheJournal_data();
    void endOfTheJournal();
    void failedWriteIsReportedOnce();

  private:
    static int count(int few, int full) { return qEnvironmentVariableIsSet("KX_FULL") ? full : few; }
    std::unique_ptr<const Dictionary> mDictionary;
};

void tst_journal::revertGivesTheStateBeforeTheForm() {
    QRandomGenerator random(4600);
    Desk desk(*mDictionary, QString());
    int made = 0;
    for (int round = 0; round < 4; ++round) {
        desk.journal.startForm();
        const TierData before = desk.document.data.current();
        const bool dirtyBefore = desk.journal.isDirty();
        for (int i = 0; i < count(100, 1000); ++i)
            made += desk.edit(random) ? 1 : 0;
        QVERIFY(desk.journal.formIsDirty());
        desk.journal.revertForm(desk.document.data.currentTier());
        QVERIFY(desk.document.data.current().sameValues(before));
        QCOMPARE(desk.journal.isDirty(), dirtyBefore);
        QVERIFY(!desk.journal.formIsDirty());
        for (int i = 0; i < 20; ++i)
            desk.edit(random); // the next form starts from another state
    }
    QVERIFY2(made > 100, "hardly any edit took effect");
}

void tst_journal::revertKeepsWhatWasSavedBefore() {
    QRandomGenerator random(1);
    Desk desk(*mDictionary, QString());
    while (!desk.edit(random)) {
    }
    desk.journal.startForm();
    const TierData saved = desk.document.data.current();
    while (!desk.edit(random)) {
    }
    desk.journal.revertForm(desk.document.data.currentTier());
    QVERIFY(desk.document.data.current().sameValues(saved));
    QVERIFY(desk.journal.isDirty());
}

void tst_journal::revertAfterASaveGoesBackToWhatWasSaved() {
    QRandomGenerator random(6);
    Desk desk(*mDictionary, QString());
    desk.journal.startForm();
    while (!desk.edit(random)) {
    }
    desk.journal.allIsStored();
    const TierData saved = desk.document.data.current();
    desk.journal.revertForm(desk.document.data.currentTier());
    QVERIFY(desk.document.data.current().sameValues(saved));
    while (!desk.edit(random)) {
    }
    QVERIFY(desk.journal.isDirty());
    desk.journal.revertForm(desk.document.data.currentTier());
    QVERIFY(desk.document.data.current().sameValues(saved));
    QVERIFY(!desk.journal.isDirty());
}

void tst_journal::killedProcessLosesNoEdit() {
    for (int round = 0; round < count(3, 50); ++round) {
        QTemporaryDir folder;
        const int edits = 20 + 13 * round;
        const pid_t child = ::fork();
        if (child == 0) {
            QRandomGenerator random(quint32(round + 1));
            Desk desk(*mDictionary, folder.path());
            for (int i = 0; i < edits; ++i)
                desk.edit(random);
            ::raise(SIGKILL);
        }
        int status = 0;
        ::waitpid(child, &status, 0);
        QVERIFY(WIFSIGNALED(status));
        QRandomGenerator random(quint32(round + 1));
        Desk expected(*mDictionary, QString());
        for (int i = 0; i < edits; ++i)
            expected.edit(random);
        const std::vector<RecoveredWork> found = JournalRecovery::find(*mDictionary, folder.path());
        QCOMPARE(found.size(), std::size_t(1));
        QVERIFY(DataDocuments::sameContent(found.front().document.data, expected.document.data));
        QVERIFY(found.front().dirty.contains(TierIndex(1)));
    }
}

void tst_journal::tornLastLineLosesOnlyItself() {
    QTemporaryDir folder;
    QString path;
    TierData before(*mDictionary, TierIndex(1));
    {
        QRandomGenerator random(9);
        Desk desk(*mDictionary, folder.path());
        for (int made = 0; made < 5;)
            made += desk.edit(random) ? 1 : 0;
        before = desk.document.data.current();
        while (!desk.edit(random)) {
        }
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
    QRandomGenerator random(2);
    Desk running(*mDictionary, folder.path());
    while (!running.edit(random)) {
    }
    QVERIFY(QFile::exists(running.journal.filePath()));
    QVERIFY(JournalRecovery::find(*mDictionary, folder.path()).empty());
    QVERIFY(QFile::exists(running.journal.filePath()));
}

void tst_journal::endOfTheJournal_data() {
    QTest::addColumn<QString>("end");
    QTest::addColumn<bool>("stays");
    QTest::newRow("saved") << "save" << false;
    QTest::newRow("shut down after the exit question") << "exit" << false;
    QTest::newRow("shut down without the question") << "shutdown" << true;
    QTest::newRow("edit after the exit question") << "exit and edit" << true;
    QTest::newRow("object gone without a shut-down") << "abrupt" << true;
}

void tst_journal::endOfTheJournal() {
    QFETCH(QString, end);
    QFETCH(bool, stays);
    QTemporaryDir folder;
    QRandomGenerator random(3);
    {
        Desk desk(*mDictionary, folder.path());
        while (!desk.edit(random)) {
        }
        if (end == QStringLiteral("save"))
            desk.journal.allIsStored();
        if (end.startsWith(QStringLiteral("exit")))
            desk.journal.exitIsKnown();
        if (end == QStringLiteral("exit and edit"))
            while (!desk.edit(random)) {
            }
        if (end != QStringLiteral("abrupt"))
            desk.journal.shutDown();
    }
    QCOMPARE(!JournalFile::inFolder(folder.path()).isEmpty(), stays);
}

void tst_journal::failedWriteIsReportedOnce() {
    QTemporaryDir folder;
    QFile blocker(folder.filePath(QStringLiteral("file")));
    QVERIFY(blocker.open(QIODevice::WriteOnly));
    QRandomGenerator random(5);
    Desk desk(*mDictionary, folder.filePath(QStringLiteral("file/journals")));
    while (!desk.edit(random)) {
    }
    QVERIFY(desk.journal.takeWriteFailure());
    while (!desk.edit(random)) {
    }
    QVERIFY(!desk.journal.takeWriteFailure());
    QVERIFY(desk.journal.formIsDirty());
}

QTEST_GUILESS_MAIN(tst_journal)
#include "tst_journal.moc"
