#include "data_file_reader.h"
#include "data_file_writer.h"
#include "dictionary_loader.h"
#include "field_defaults.h"
#include "file_problem.h"
#include "json_text.h"
#include "restore_points.h"
#include "sealed_text.h"
#include "whole_file.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

// What becomes of a sound file: the text between the marks is replaced.
struct Mutation {
    QByteArray from;
    QByteArray to;
    bool resealed = false; // with a checksum that fits again
};
Q_DECLARE_METATYPE(Mutation)

class tst_data_files : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void initTestCase();
    void everyStoredValueSurvivesTheFile_data();
    void everyStoredValueSurvivesTheFile();
    void keysMayStandInAnyOrderAndSpelling();
    void unknownFieldsAreWrittenBackWhereTheyStood();
    void unknownFieldsFollowTheirRecord();
    void everyFaultOfTheGrammarIsFound_data();
    void everyFaultOfTheGrammarIsFound();
    void damagedFileIsRefusedWithItsPath_data();
    void damagedFileIsRefusedWithItsPath();
    void everyFlippedByteAndTruncationIsNoticed();
    void replacedFileLeavesTheOldOneAsBackup();
    void failedWriteLeavesTheOldFile();
    void onlyTheNewestRestorePointsStay();

  private:
    // Every stored field of every record at a value other than its default, as far as it has one.
    void changeEverything(TierData &data) const;
    static QByteArray textOf(const DataDocument &document) {
        const DataFileWriter writer(document);
        return writer.write(writer.header(QStringLiteral("1.02.00.0034"), QStringLiteral("a \"comment\"\n\u4e2d")));
    }
    [[nodiscard]] DataDocument read(const QByteArray &text) const {
        return DataFileReader(*mDictionary, QStringLiteral("name.k4p")).read(text);
    }
    static QByteArray resealed(const QByteArray &text) {
        return SealedText::seal(text.first(text.lastIndexOf('\n', -2) + 1));
    }

    std::unique_ptr<const Dictionary> mDictionary;
};

void tst_data_files::initTestCase() { mDictionary = DictionaryLoader::loadCompiledIn(); }

void tst_data_files::changeEverything(TierData &data) const {
    for (const RecordStructure &structure : mDictionary->structures()) {
        const qint32 room = structure.parent.isValid() ? 0 : structure.in(data.tier()).most;
        for (qint32 number = data.recordCount(structure.index) + 1; !structure.isRadio() && number <= qMin(room, 3);
             ++number)
            data.insertRecord(structure.index, {0, number}, FieldDefaults(data).newRecord(structure.index, 0));
    }
    for (const FieldDefinition &field : mDictionary->fields()) {
        const bool linked = field.kind == FieldKind::Identity || field.kind == FieldKind::Reference;
        if (!field.isStored() || linked)
            continue;
        for (const RecordAddress record : data.records(field.structure)) {
            StoredValue value = field.limits.maximum;
            if (field.isTextual())
                value = QString(field.length, field.mask.isEmpty() ? u'"' : field.mask.back());
            else if (field.hasItems())
                value = field.items.back().value;
            else if (field.kind == FieldKind::Flag)
                value = 1 - field.defaultNumber;
            else if (field.limitsBy)
                value = field.limitsBy->limits.front().first;
            data.setValue(field.index, record, value);
        }
    }
}

void tst_data_files::everyStoredValueSurvivesTheFile_data() {
    QTest::addColumn<int>("tier");
    for (qint32 place = 0; place < qint32(mDictionary->tiers().size()); ++place)
        QTest::newRow(qPrintable(mDictionary->tier(TierIndex(place)).key)) << int(place);
}

void tst_data_files::everyStoredValueSurvivesTheFile() {
    QFETCH(int, tier);
    DataDocument document(*mDictionary);
    document.data.setCurrentTier(TierIndex(tier));
    document.data.current().setVersionLevel(1);
    changeEverything(document.data.current());
    const DataDocument again = read(textOf(document));
    QVERIFY(DataDocuments::sameContent(again.data, document.data));
    QCOMPARE(again.data.current().versionLevel(), 1);
    QVERIFY(!again.data.current().sameValues(TierData(*mDictionary, TierIndex(tier))));
}

// Other programs sort the keys of a file, break its lines elsewhere or escape more than we do.
void tst_data_files::keysMayStandInAnyOrderAndSpelling() {
    DataDocument document(*mDictionary);
    changeEverything(document.data.current());
    const QByteArray text = textOf(document);
    const qsizetype tiers = text.indexOf("\"tiers\"");
    const QJsonValue values = QJsonDocument::fromJson(text).object().value(QStringLiteral("tiers"));
    for (const auto format : {QJsonDocument::Compact, QJsonDocument::Indented}) {
        const QByteArray sorted = QJsonDocument(values.toObject()).toJson(format).trimmed();
        QByteArray other = text.first(tiers) + "\"tiers\" : " + sorted + " ,\n";
        other.replace("\"EconomyTimer\"", "\"\\u0045conomyTimer\"");
        const DataDocument again = read(SealedText::seal(other));
        QVERIFY(DataDocuments::sameContent(again.data, document.data));
        QVERIFY(!textOf(again).contains("u0045"));
    }
}

void tst_data_files::unknownFieldsAreWrittenBackWhereTheyStood() {
    QByteArray text = textOf(DataDocument(*mDictionary));
    text.replace("\"EconomyTimer\"", "\"LaterField\": {\"deep\": [1, null]},\n\"EconomyTimer\"");
    text.replace("{\"ChannelID_q7r\"", "{\"LaterColumn\": \"x\", \"ChannelID_q7r\"");
    text.replace("\"tiers\": {", "\"laterTop\": 7,\n\"tiers\": {\n\"Later\": {\"a\": 1},");
    const QByteArray again = textOf(read(resealed(text)));
    QVERIFY(again.contains("\"LaterField\":{\"deep\":[1,null]}"));
    QVERIFY(again.contains("\"LaterColumn\":\"x\""));
    QVERIFY(again.contains("\"laterTop\":7"));
    QVERIFY(again.contains("\"Later\":{\"a\":1}"));
}

void tst_data_files::unknownFieldsFollowTheirRecord() {
    UnknownFields unknown;
    const TierIndex tier(0);
    const StructureIndex channel = *mDictionary->structureByName(QStringLiteral("Channel"));
    for (qint32 number = 1; number <= 4; ++number)
        unknown.setRecord(tier, channel, {0, number}, {{QStringLiteral("n"), number}});
    unknown.follow(tier,
                   {InsertStep{channel, {0, 2}, {}}, RemoveStep{channel, {0, 1}, {}}, MoveStep{channel, 0, 4, 1}});
    QList<int> order;
    for (qint32 number = 1; number <= 4; ++number)
        order.append(unknown.ofRecord(tier, channel, {0, number}).value(QStringLiteral("n")).toInt());
    QCOMPARE(order, QList<int>({4, 0, 2, 3}));
}

void tst_data_files::everyFaultOfTheGrammarIsFound_data() {
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("fault"); // byte; -1: sound
    const auto row = [](const QByteArray &text, int fault) { QTest::addRow("%s", text.constData()) << text << fault; };
    row(R"( {"a": [1, -0.5e+3, true, null, "\u00e9\n"], "b": {} } )", -1);
    row("", 0);
    row("[1] 2", 4);
    row("[1,]", 3);
    row("[1 2]", 3);
    row("{\"a\" 1}", 5);
    row("{a: 1}", 1);
    row("[01]", 2);
    row("[1.]", 3);
    row("[-]", 2);
    row("[1e]", 3);
    row("[nul]", 1);
    row("\"a", 2);
    row("\"\t\"", 1);
    row(R"("\x")", 2);
    row(R"("\u12g4")", 5);
    QTest::newRow("deep") << QByteArray(JsonText::kDeepest, '[') + QByteArray(JsonText::kDeepest, ']') << -1;
    QTest::newRow("too deep") << QByteArray(100000, '[') << JsonText::kDeepest + 1;
}

void tst_data_files::everyFaultOfTheGrammarIsFound() {
    QFETCH(QByteArray, text);
    QFETCH(int, fault);
    QCOMPARE(int(JsonText::fault(text).value_or(-1)), fault);
}

void tst_data_files::damagedFileIsRefusedWithItsPath_data() {
    QTest::addColumn<Mutation>("mutation");
    QTest::addColumn<QString>("reason");
    QTest::newRow("value altered by hand") << Mutation{"\"EconomyTimer\": 10", "\"EconomyTimer\": 11"} << "checksum";
    QTest::newRow("header altered by hand") << Mutation{"\"networks\":1", "\"networks\":2"} << "checksum";
    QTest::newRow("checksum line gone") << Mutation{"\"sha256\"", "\"sha999\""} << "checksum";
    QTest::newRow("other program") << Mutation{"KX4600 data", "KX9999 data"} << "not a KX4600 data file";
    QTest::newRow("squirt file") << Mutation{"KX4600 data", "KX4600 squirt"} << "program it into a radio";
    QTest::newRow("calibration data") << Mutation{"KX4600 data", "KX4600 calibration"}
                                      << "calibration data of a KX4600";
    QTest::newRow("sibling's data") << Mutation{"KX4600 data", "ZB2500 data"} << "ZB2500";
    QTest::newRow("newer format") << Mutation{"\"formatVersion\":1", "\"formatVersion\":2", true} << "format version 2";
    QTest::newRow("no format") << Mutation{"\"formatVersion\":1", "\"formatVersion\":0", true} << "damaged";
    QTest::newRow("newer database") << Mutation{"\"databaseVersion\":\"3.20\"", "\"databaseVersion\":\"3.30\"", true}
                                    << "up to 3.20";
    QTest::newRow("newer database of a tier")
        << Mutation{"\"databaseVersion\": \"3.20\"", "\"databaseVersion\": \"4.00\"", true} << "4.00";
    QTest::newRow("unknown tier") << Mutation{"\"tier\":\"Basic\"", "\"tier\":\"Super\"", true} << "radio model";
    QTest::newRow("number above its limit")
        << Mutation{"\"EconomyTimer\": 10", "\"EconomyTimer\": 256", true} << "EconomyTimer";
    QTest::newRow("fraction of a whole number")
        << Mutation{"\"EconomyTimer\": 10", "\"EconomyTimer\": 10.5", true} << "EconomyTimer";
    QTest::newRow("number beyond 32 bits")
        << Mutation{"\"EconomyTimer\": 10", "\"EconomyTimer\": 1e300", true} << "EconomyTimer";
    QTest::newRow("text for a number") << Mutation{"\"EconomyTimer\": 10", "\"EconomyTimer\": \"10\"", true}
                                       << "EconomyTimer";
    QTest::newRow("null for a number") << Mutation{"\"EconomyTimer\": 10", "\"EconomyTimer\": null", true}
                                       << "EconomyTimer";
    QTest::newRow("item not in its list")
        << Mutation{"\"EconomyDutyCycle\": 2", "\"EconomyDutyCycle\": 9", true} << "EconomyDutyCycle";
    QTest::newRow("identity twice") << Mutation{"{\"ChannelID_q7r\": 1,",
                                                "{\"ChannelID_q7r\": 1},\n{\"ChannelID_q7r\": 1,", true}
                                    << "have the number 1";
    QTest::newRow("records missing") << Mutation{"\"Channel\": [", "\"Chanel\": [", true} << "records of Channel";
    QTest::newRow("records are no list") << Mutation{"\"ScanGroup\": []", "\"ScanGroup\": 5", true} << "ScanGroup";
    QTest::newRow("record is no object") << Mutation{"\"Channel\": [", "\"Channel\": [7,", true} << "Channel";
    QTest::newRow("fixed table with a row too many")
        << Mutation{"\"AudioSource\": [", "\"AudioSource\": [{},", true} << "records of AudioSource";
    QTest::newRow("broken text") << Mutation{"\"Channel\": [", "\"Channel\": [[[", true} << "broken";
}

void tst_data_files::damagedFileIsRefusedWithItsPath() {
    QFETCH(Mutation, mutation);
    QFETCH(QString, reason);
    QByteArray text = textOf(DataDocument(*mDictionary));
    const qsizetype at = text.indexOf(mutation.from);
    QVERIFY(at >= 0);
    text.replace(at, mutation.from.size(), mutation.to);
    if (mutation.resealed)
        text = resealed(text);
    try {
        (void)read(text);
        QFAIL("accepted");
    } catch (const FileProblem &problem) {
        QVERIFY2(problem.Description.contains(reason), qPrintable(problem.Description));
        QVERIFY(problem.Description.contains(QStringLiteral("name.k4p")));
    }
}

void tst_data_files::everyFlippedByteAndTruncationIsNoticed() {
    const QByteArray sound = textOf(DataDocument(*mDictionary));
    const qsizetype step = !qEnvironmentVariableIsEmpty("KX_FULL") ? 1 : sound.size() / 100;
    for (qsizetype at = 0; at < sound.size(); at += step) {
        QByteArray text = sound;
        text[at] = char(text[at] ^ 0x04);
        QVERIFY_THROWS_EXCEPTION(FileProblem, (void)read(text));
    }
    for (qsizetype length = 0; length < sound.size(); length += sound.size() / 60)
        QVERIFY_THROWS_EXCEPTION(FileProblem, (void)read(sound.first(length)));
}

void tst_data_files::replacedFileLeavesTheOldOneAsBackup() {
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.k4p"));
    WholeFile::replaceWithBackup(path, "one");
    QVERIFY(!QFile::exists(path + QStringLiteral(".bak")));
    WholeFile::replaceWithBackup(path, "two");
    QCOMPARE(WholeFile::read(path), QByteArray("two"));
    QCOMPARE(WholeFile::read(path + QStringLiteral(".bak")), QByteArray("one"));
}

void tst_data_files::failedWriteLeavesTheOldFile() {
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("missing/a.k4p"));
    try {
        WholeFile::replaceWithBackup(path, "x");
        QFAIL("written into a folder that does not exist");
    } catch (const FileProblem &problem) {
        QCOMPARE(problem.Parameters.first(), path);
        QVERIFY(!problem.Parameters.last().isEmpty());
    }
    QVERIFY_THROWS_EXCEPTION(FileProblem, (void)WholeFile::read(folder.path()));
    QVERIFY_THROWS_EXCEPTION(FileProblem, (void)WholeFile::read(path));
}

void tst_data_files::onlyTheNewestRestorePointsStay() {
    QTemporaryDir folder;
    const RestorePoints points(folder.path());
    const QString first = points.store(QStringLiteral("12345678"), "0");
    for (int i = 1; i <= RestorePoints::kKept; ++i)
        (void)points.store(QStringLiteral("12345678"), QByteArray::number(i));
    (void)points.store(QStringLiteral("7"), "other radio");
    const QStringList kept = points.of(QStringLiteral("12345678"));
    QCOMPARE(kept.size(), qsizetype(RestorePoints::kKept));
    QVERIFY(!kept.contains(first));
    QCOMPARE(WholeFile::read(kept.first()), QByteArray::number(RestorePoints::kKept));
    QCOMPARE(points.serialNumbers(), QStringList({QStringLiteral("12345678"), QStringLiteral("7")}));
}

QTEST_GUILESS_MAIN(tst_data_files)
#include "tst_data_files.moc"
