#include "cls_mapping_gen.h"
#include "mapping_commands.h"
#include "mapping_shell.h"
#include "product_identity.h"
#include "recording_transformer.h"
#include "test_services.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

// Script files, their lines, and what a replay asks of the component.
class MappingScriptTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void valueLines_data();
    void valueLines();
    void fileText_data();
    void fileText();
    void savedScriptComesBackWhole();
    void initialStates_data();
    void initialStates();
    void replayMessages_data();
    void replayMessages();
    void replayCallsInOrder();
    void fileLoadOrder();
    void unwritablePlaceKeepsTheScript();

  private:
    // A recorder on a double, and files in a folder of their own.
    struct Bench {
        CallLog log;
        RecordingTransformer transformer{log};
        TestServices services{&transformer};
        clsMappingGen recorder{transformer, services.boxes, services.translation, services.errors,
                               [this] { log.add(QStringLiteral("Fresh")); }};
        QTemporaryDir folder;
        QString write(const QString &name, const QString &text) const {
            QFile file(folder.filePath(name));
            file.open(QIODevice::WriteOnly);
            file.write(text.toUtf8());
            return file.fileName();
        }
    };
};

void MappingScriptTest::valueLines_data() {
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("uiid");
    QTest::addColumn<int>("record");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("written"); // as the recorder writes the same
    const auto row = [](const char *line, const char *uiid, int record, const char *value, const char *written) {
        QTest::newRow(line) << QString::fromLatin1(line) << QString::fromLatin1(uiid) << record
                            << QString::fromLatin1(value) << QString::fromLatin1(written);
    };
    row("Timer = 5", "Timer", 1, "5", "Timer = 5");
    row("Timer(1) = 5", "Timer", 1, "5", "Timer = 5");
    row("  RxFreq(12) = 156.5 ", "RxFreq", 12, "156.5", "RxFreq(12) = 156.5");
    row("Name = A (b) = c", "Name", 1, "A (b) = c", "Name = A (b) = c");
    row("Name(2) =", "Name", 2, "", "Name(2) = ");
}

void MappingScriptTest::valueLines() {
    QFETCH(const QString, line);
    const MappingValueLine parts = MappingLine::splitUIField(line);
    QTEST(parts.uiid, "uiid");
    QTEST(int(parts.recordNr), "record");
    QTEST(parts.value, "value");
    QTEST(MappingLine::ofValue(parts), "written");
}

void MappingScriptTest::fileText_data() {
    QTest::addColumn<QString>("fileName");
    QTest::addColumn<QStringList>("comments");
    QTest::addColumn<QString>("initialState");
    QTest::addColumn<QStringList>("expected"); // without the line of the date
    const QString rule = QStringLiteral("' ") + QString(45, u'=');
    const QString made = QStringLiteral("' Generated from Tier Advanced version ") + ProductIdentity::fullVersion();
    const QStringList rest{QString(), QStringLiteral("UI Fields:"),       QStringLiteral("A = 1"),
                           QString(), QStringLiteral("Database Fields:"), QStringLiteral("F")};
    QTest::newRow("new script")
        << QString() << QStringList() << QString()
        << QStringList{rule,      QStringLiteral("' Purpose: "),   made, QStringLiteral("' "), rule,
                       QString(), QStringLiteral("Initial State:")} +
               rest;
    QTest::newRow("folder, two comments, initial state")
        << QStringLiteral("/home/t/one.tst") << QStringList{QStringLiteral("first"), QStringLiteral("second")}
        << QStringLiteral("zero.tst")
        << QStringList{rule,
                       QStringLiteral("' one.tst"),
                       QStringLiteral("' Purpose: first"),
                       QStringLiteral("'          second"),
                       made,
                       QStringLiteral("' "),
                       rule,
                       QString(),
                       QStringLiteral("Initial State:"),
                       QStringLiteral("zero.tst")} +
               rest;
    QTest::newRow("name without folder")
        << QStringLiteral("one.tst") << QStringList() << QStringLiteral("  ")
        << QStringList{rule,      QStringLiteral("' Purpose: "),   made, QStringLiteral("' "), rule,
                       QString(), QStringLiteral("Initial State:")} +
               rest;
}

void MappingScriptTest::fileText() {
    MappingScript script;
    script.uiFields = {QStringLiteral("A = 1")};
    script.databaseFields = {QStringLiteral("F")};
    QFETCH(const QString, fileName);
    QFETCH(const QStringList, comments);
    QFETCH(const QString, initialState);
    script.fileName = fileName;
    script.comments = comments;
    script.initialStateFile = initialState;
    QStringList lines = script.lines({QStringLiteral("Advanced"), ProductIdentity::fullVersion(), QDate(2031, 4, 5)});
    const QStringList dates = lines.filter(QStringLiteral("' Date: "));
    QCOMPARE(dates.size(), 1);
    lines.removeAll(dates.constFirst());
    QTEST(lines, "expected");
}

void MappingScriptTest::savedScriptComesBackWhole() {
    Bench bench;
    bench.transformer.when(QStringLiteral("GetDatabaseFieldList")).answers(QStringList{QStringLiteral("F")});
    bench.write(QStringLiteral("zero.tst"), QStringLiteral("UI Fields:\nZ = 0\n"));
    bench.recorder.Comments() = {QStringLiteral("One: a check"), QStringLiteral("of \u00e9")};
    bench.recorder.UIFields() = {QStringLiteral("A = 1"), QStringLiteral("Add G-H, 2")};
    bench.recorder.InitialStateFile(QStringLiteral("zero.tst"));
    const QString name = bench.folder.filePath(QStringLiteral("one.tst"));
    QVERIFY(bench.recorder.FileSave(name));
    QFile file(name);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray text = file.readAll();
    QCOMPARE(text.count("\r\n"), text.count('\n'));
    QVERIFY(bench.recorder.ReadFile(name, false));
    QCOMPARE(bench.recorder.UICollection().join(QStringLiteral("\r\n")).toUtf8() + "\r\n", text);
    QCOMPARE(bench.recorder.Comments(), (QStringList{QStringLiteral("One: a check"), QStringLiteral("of \u00e9")}));
}

void MappingScriptTest::initialStates_data() {
    QTest::addColumn<QStringList>("files"); // "name|initial state"; each sets its own name to 1; the first is loaded
    QTest::addColumn<QString>("message");
    QTest::addColumn<bool>("loads");
    QTest::addColumn<QString>("ran"); // names in the order of all fields
    QTest::newRow("alone") << QStringList{QStringLiteral("a|")} << QString() << true << QStringLiteral("a");
    QTest::newRow("chain") << QStringList{QStringLiteral("a|b"), QStringLiteral("b|c"), QStringLiteral("c|")}
                           << QString() << true << QStringLiteral("cba");
    QTest::newRow("loop") << QStringList{QStringLiteral("a|b"), QStringLiteral("b|b")}
                          << QStringLiteral("The initial state file contains several references to 'b'") << true
                          << QStringLiteral("ba");
    QTest::newRow("names itself") << QStringList{QStringLiteral("a|a")}
                                  << QStringLiteral("The initial state file contains several references to 'a'") << true
                                  << QStringLiteral("aa");
    QTest::newRow("loop through another")
        << QStringList{QStringLiteral("a|b"), QStringLiteral("b|a")}
        << QStringLiteral("The initial state file contains several references to 'b'") << true << QStringLiteral("aba");
    QTest::newRow("missing") << QStringList{QStringLiteral("a|b")} << QStringLiteral("Initial State file b not found")
                             << false << QString();
    QTest::newRow("in quotes") << QStringList{QStringLiteral("a|\"b\""), QStringLiteral("b|")} << QString() << true
                               << QStringLiteral("ba");
}

void MappingScriptTest::initialStates() {
    QFETCH(const QStringList, files);
    QFETCH(const QString, message);
    QFETCH(const bool, loads);
    QFETCH(const QString, ran);
    Bench bench;
    for (const QString &file : files) {
        const QString name = file.section(u'|', 0, 0);
        bench.write(name,
                    QStringLiteral("Initial State:\n%1\n\nUI Fields:\n%2 = 1\n").arg(file.section(u'|', 1), name));
    }
    if (!message.isEmpty())
        bench.services.boxes.expect(message, 0);
    QCOMPARE(bench.recorder.ReadFile(bench.folder.filePath(files.constFirst().section(u'|', 0, 0)), false), loads);
    if (!loads)
        return;
    bench.transformer.when(QStringLiteral("GetNumberOfRecords")).answers(1);
    static_cast<void>(bench.log.take());
    bench.recorder.ExecuteFields(true);
    QString names;
    for (const QString &call : bench.log.take().filter(QStringLiteral("SetValue(")))
        names += call.mid(9, 1);
    QCOMPARE(names, ran);
}

void MappingScriptTest::replayMessages_data() {
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("message");
    const auto row = [](const char *line, const char *message) {
        QTest::newRow(line) << QString::fromLatin1(line) << QString::fromLatin1(message);
    };
    row("Add F-G, 2", "Error adding record 2 for field F in grid G");
    row("Repeat F-G, 3", "Error repeating record 3 for field F in grid G");
    row("Insert F-G, 2", "Error inserting record 2 for field  F in grid G");
    row("Delete F-G, 1", "Error deleting record 1 for field F in grid G");
    row("Delete F-G 1", "Invalid line 'Delete F-G 1'");
    row("Add FG, 1", "Invalid line 'Add FG, 1'");
    row("Repeat", "Invalid line 'Repeat'");
    row("A(7) = 1", "Error setting 'A'.  Record 7 for A does not exist");
}

void MappingScriptTest::replayMessages() {
    QFETCH(const QString, line);
    QFETCH(const QString, message);
    Bench bench;
    bench.transformer.when(QStringLiteral("GetNumberOfRecords")).answers(6);
    for (const char *operation : {"AddRecord", "InsertRecord", "RepeatRecord", "DeleteRecord"})
        bench.transformer.when(QString::fromLatin1(operation)).refuses();
    bench.recorder.UIFields() = {line, QStringLiteral("B = 2")};
    bench.services.boxes.expect(message, 0);
    bench.recorder.ExecuteFields(false);
    QCOMPARE(bench.log.take().filter(QStringLiteral("SetValue(B")).size(), 1); // the replay went on
}

void MappingScriptTest::replayCallsInOrder() {
    Bench bench;
    bench.transformer.when(QStringLiteral("GetNumberOfRecords")).answers(9);
    bench.transformer.when(QStringLiteral("GetCurrentTier")).answers(QStringLiteral("Basic"));
    for (const char *operation : {"AddRecord", "InsertRecord", "RepeatRecord", "DeleteRecord"})
        bench.transformer.when(QString::fromLatin1(operation)).answers(true);
    bench.recorder.UIFields() = {QStringLiteral("Add F-G, 1"), QStringLiteral("A(2) = x y"),
                                 QStringLiteral("Delete F-G, 4")};
    bench.recorder.ExecuteFields(false);
    QStringList names;
    for (const QString &call : bench.log.take())
        names << call.section(u'(', 0, 0);
    QCOMPARE(names, (QStringList{QStringLiteral("AddRecord"), QStringLiteral("GetNumberOfRecords"),
                                 QStringLiteral("SetValue"), QStringLiteral("DeleteRecord"),
                                 QStringLiteral("GetCurrentTier"), QStringLiteral("SaveForm")}));
}

void MappingScriptTest::fileLoadOrder() {
    Bench bench;
    bench.transformer.when(QStringLiteral("GetNumberOfRecords")).answers(1);
    const QString name = bench.write(QStringLiteral("a.tst"), QStringLiteral("UI Fields:\r\nA = 1\r\n"));
    for (const bool initialOnly : {false, true}) {
        QVERIFY(bench.recorder.FileLoad(name, initialOnly));
        QString order;
        for (const QString &call : bench.log.take()) {
            if (call.startsWith(QStringLiteral("SetValue")))
                order += u'S';
            else if (call.startsWith(QStringLiteral("ResetDatabase")))
                order += u'R';
        }
        QCOMPARE(order, initialOnly ? QStringLiteral("SR") : QStringLiteral("SRS"));
    }
    bench.recorder.ResetToDefaults();
    QVERIFY(bench.recorder.UIFields().isEmpty());
    QVERIFY(bench.log.take().contains(QStringLiteral("Fresh()")));
}

void MappingScriptTest::unwritablePlaceKeepsTheScript() {
    Bench bench;
    bench.recorder.UIFields() = {QStringLiteral("A = 1")};
    QVERIFY(!bench.recorder.FileSave(bench.folder.filePath(QStringLiteral("no/such/a.tst"))));
    QCOMPARE(bench.recorder.UIFields(), QStringList{QStringLiteral("A = 1")});
    QVERIFY(bench.log.take().filter(QStringLiteral("GetDatabaseFieldList")).isEmpty());
}

QTEST_MAIN(MappingScriptTest)
#include "mapping_script_test.moc"
