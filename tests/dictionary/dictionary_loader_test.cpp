#include "run_time_error.h"
#include "small_dictionary.h"

#include <QTest>

// Faults that the loader must find, each put into a dictionary that is otherwise good.
class DictionaryLoaderTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void aFaultIsRefusedWithFileOwnerAndKey_data();
    void aFaultIsRefusedWithFileOwnerAndKey();
    void aMissingFileIsNamed();
    void namesAreResolvedWhereverTheyStand();
    void capacitiesOfChildrenFollowTheirParents();
    void dependenciesAreTurnedRound();
    void widthsHoldTheLongestValue();
};

namespace {

QString faultOf(const std::vector<DictionaryFile> &files) {
    try {
        (void)DictionaryLoader::load(files);
    } catch (const RunTimeError &error) {
        return error.Description;
    }
    return QStringLiteral("(no fault found)");
}

} // namespace

void DictionaryLoaderTest::aFaultIsRefusedWithFileOwnerAndKey_data() {
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("from");
    QTest::addColumn<QByteArray>("to");
    QTest::addColumn<QString>("start");
    struct Row {
        const char *name, *file, *from, *to, *start;
    };
    const Row rows[] = {
        {"broken JSON", "radio.json", "\"Beep\",", "\"Beep\"", "radio.json: byte "},
        {"unknown key of a field", "radio.json", "\"unit\": \"dB\"", "\"units\": \"dB\"",
         "radio.json: Offset: units: "},
        {"unknown key of a rule", "members.json", "\"is\": [0]", "\"is\": [0], \"if\": 1",
         "members.json: MemberChannel: if: "},
        {"unknown key of an item", "lists.json", "\"level\": 2", "\"levels\": 2", "lists.json: POWER: levels: "},
        {"missing label", "radio.json", "\"label\": \"Beep\", ", "", "radio.json: Beep: label: "},
        {"label over 24 characters", "radio.json", "\"label\": \"Beep\"", "\"label\": \"Beep at every key pressed\"",
         "radio.json: Beep: label: "},
        {"unknown kind", "radio.json", "\"kind\": \"flag\"", "\"kind\": \"bool\"", "radio.json: Beep: kind: "},
        {"duplicate field", "networks.json", "\"id\": \"Calls\"", "\"id\": \"Beep\"", "networks.json: Beep: id: "},
        {"version levels with a gap", "tiers.json", "\"level\": 2", "\"level\": 3", "tiers.json: file: level: "},
        {"unknown tier of a tree entry", "tiers.json", "[\"Full\"] }", "[\"Half\"] }",
         "tiers.json: frmSystem: tiers: "},
        {"child of a child", "structures.json", "\"parent\": \"System\", \"least\"", "\"parent\": \"Slot\", \"least\"",
         "structures.json: Burst: parent: "},
        {"two radios", "structures.json", "\"guide\": \"NetworkID\", ", "", "structures.json: file: structures: "},
        {"fixed rows that are not", "structures.json", "\"least\": 3, \"most\": 3", "\"least\": 2, \"most\": 3",
         "structures.json: Burst: fixed: "},
        {"capacity below the least", "structures.json", "\"least\": 1, \"most\": 4", "\"least\": 5, \"most\": 4",
         "structures.json: Network: most: "},
        {"guide of another structure", "structures.json", "\"guide\": \"BurstNr\"", "\"guide\": \"SlotText\"",
         "SlotText: names two structures"},
        {"access between two levels", "channels.json", "\"access\": 80", "\"access\": 70",
         "channels.json: Boost: access: "},
        {"number without limits", "radio.json", "\"min\": 20, ", "", "radio.json: Delay: min: "},
        {"limits the wrong way round", "radio.json", "\"min\": 20, ", "\"min\": 600, ", "radio.json: Delay: max: "},
        {"step of nothing", "radio.json", "\"step\": 20", "\"step\": 0", "radio.json: Delay: step: "},
        {"limit with more decimals than the field", "radio.json", "\"max\": 10.5", "\"max\": 10.55",
         "radio.json: Offset: max: "},
        {"default below the minimum", "radio.json", "\"default\": 20", "\"default\": 0",
         "radio.json: Delay: default: "},
        {"default off the step", "radio.json", "\"default\": 20", "\"default\": 30", "radio.json: Delay: default: "},
        {"default off both rasters", "channels.json", "\"defaults\": [45, 160] } },\n  { \"id\": \"Tx\"",
         "\"defaults\": [45, 160.001] } },\n  { \"id\": \"Tx\"", "channels.json: Rx: defaults: "},
        {"default outside its own limits row", "channels.json", "\"defaults\": [45, 160] } },\n  { \"id\": \"Tx\"",
         "\"defaults\": [160, 160] } },\n  { \"id\": \"Tx\"", "channels.json: Rx: defaults: "},
        {"missing default", "radio.json", "\"default\": 1 ", "\"fact\": true ", "radio.json: Beep: default: "},
        {"default that is no item", "channels.json", "\"default\": \"Low\"", "\"default\": \"Middle\"",
         "channels.json: Power: default: "},
        {"flag of 2", "radio.json", "\"default\": 1 ", "\"default\": 2 ", "radio.json: Beep: default: "},
        {"default text too long", "radio.json", "\"default\": \"\", \"mask\"", "\"default\": \"ABCABCA\", \"mask\"",
         "radio.json: Owner: default: "},
        {"None where there is none", "channels.json", "\"default\": 1, \"to\"", "\"default\": \"None\", \"to\"",
         "channels.json: Network: default: "},
        {"limits for too few items", "channels.json", "[[40, 50], [136, 174]], \"defaults\": [45, 160] }, \"follows\"",
         "[[136, 174]], \"defaults\": [160] }, \"follows\"", "channels.json: Tx: limits: "},
        {"unknown list", "channels.json", "\"list\": \"POWER\"", "\"list\": \"POWERS\"",
         "channels.json: Power: list: "},
        {"item text twice", "networks.json", "[\"None\", \"Selcall\"]", "[\"None\", \"None\"]",
         "networks.json: Calls: items: "},
        {"item value twice", "bursts.json", "\"value\": 7", "\"value\": 0", "bursts.json: BurstTone: items: "},
        {"reference to nothing", "channels.json", "\"to\": \"Network\"", "\"to\": \"Net\"",
         "channels.json: Network: to: "},
        {"reference to rows without a scope", "systems.json", "\"to\": \"Slot\"", "\"to\": \"Burst\"",
         "systems.json: Favourite: to: "},
        {"text for a target missing", "radio.json", ", \"Group\": \"Group %1\"", "", "radio.json: Start: Group: "},
        {"rule over an unknown field", "members.json", "\"GroupTone\"", "\"GroupTune\"",
         "members.json: MemberChannel: field: "},
        {"rule with an unknown item", "channels.json", "\"is\": [\"Selcall\"]", "\"is\": [\"Sellcall\"]",
         "channels.json: Boost: is: "},
        {"rule without a test", "members.json", ", \"is\": [0]", "", "members.json: MemberChannel: field: "},
        {"rule with two tests", "members.json", "\"is\": [0]", "\"is\": [0], \"above\": 0",
         "members.json: MemberChannel: field: "},
        {"rule that cannot be reached", "members.json", "\"GroupTone\"", "\"Rx\"",
         "members.json: MemberChannel: field: "},
        {"via that leads elsewhere", "channels.json", "\"via\": \"Network\"", "\"via\": \"Start\"",
         "channels.json: Boost: via: "},
        {"text test of a number", "radio.json", "\"field\": \"Owner\", \"empty\"", "\"field\": \"Beep\", \"empty\"",
         "radio.json: Delay: empty: "},
        {"reset by another structure", "channels.json", "\"resetWhenChanges\": \"Power\"",
         "\"resetWhenChanges\": \"Band\"", "channels.json: Boost: resetWhenChanges: "},
        {"enable rules in a circle", "radio.json", "\"default\": 1 }",
         "\"default\": 1, \"enabledWhen\": { \"field\": \"Delay\", \"above\": 20 } }", "Beep: depends on itself"},
        {"place outside the record", "slots.json", "\"at\": [0, 8]", "\"at\": [1, 8]", "slots.json: SlotText: at: "},
        {"place too small for the text", "slots.json", "\"at\": [0, 8]", "\"at\": [0, 7]",
         "slots.json: SlotText: at: "},
        {"place too small for the number", "radio.json", "\"at\": [14, 2]", "\"at\": [14, 1]",
         "radio.json: Delay: at: "},
        {"place too small for a mixed reference", "radio.json", "\"at\": [8, 4]", "\"at\": [8, 2]",
         "radio.json: Start: at: "},
        {"overlapping bit", "radio.json", "\"at\": [7, 0, 0]", "\"at\": [6, 0, 3]", "Beep: at: overlaps \"Owner\""},
    };
    for (const Row &row : rows)
        QTest::newRow(row.name) << QString::fromLatin1(row.file) << QByteArray(row.from) << QByteArray(row.to)
                                << QString::fromLatin1(row.start);
}

void DictionaryLoaderTest::aFaultIsRefusedWithFileOwnerAndKey() {
    QFETCH(QString, file);
    QFETCH(QByteArray, from);
    QFETCH(QByteArray, to);
    QFETCH(QString, start);
    const QString fault = faultOf(SmallDictionary::filesWith(file, from, to));
    QVERIFY2(fault.startsWith(start), qPrintable(fault));
}

void DictionaryLoaderTest::aMissingFileIsNamed() {
    std::vector<DictionaryFile> files = SmallDictionary::files();
    files.erase(files.begin() + 1);
    QCOMPARE(faultOf(files), QStringLiteral("structures.json: the file is missing"));
}

void DictionaryLoaderTest::namesAreResolvedWhereverTheyStand() {
    const auto dictionary = SmallDictionary::make();
    const auto network = dictionary->structureByName(QStringLiteral("Network"));
    QCOMPARE(dictionary->structureOf(QStringLiteral("NetworkID")), network);
    QCOMPARE(dictionary->structureOf(QStringLiteral("CurrentNetwork")), network);
    QCOMPARE(dictionary->structureOf(QStringLiteral("Calls")), network);
    QVERIFY(!dictionary->structureOf(QStringLiteral("calls")).has_value());
    QVERIFY(!dictionary->indexOf(QStringLiteral("CurrentNetwork")).isValid());
    QCOMPARE(dictionary->tree(TierIndex(0)).size(), std::size_t(1));
    QCOMPARE(dictionary->tree(TierIndex(1)).size(), std::size_t(2));
    QCOMPARE(dictionary->find(QStringLiteral("SlotText"))->levelIn(TierIndex(0)), FieldDefinition::kNever);
    QCOMPARE(dictionary->find(QStringLiteral("SlotText"))->levelIn(TierIndex(1)), 0);
}

void DictionaryLoaderTest::capacitiesOfChildrenFollowTheirParents() {
    const auto dictionary = SmallDictionary::make();
    const RecordStructure &slot = dictionary->structure(*dictionary->structureByName(QStringLiteral("Slot")));
    QCOMPARE(slot.in(TierIndex(0)).most, 0);
    QCOMPARE(slot.in(TierIndex(1)).most, 6);
    const RecordStructure &burst = dictionary->structure(*dictionary->structureByName(QStringLiteral("Burst")));
    QCOMPARE(burst.in(TierIndex(0)).most, 0);
    QCOMPARE(burst.in(TierIndex(1)).most, 3);
    // Radio 18, networks 34, channels 66, groups 26, members 3 x 12, systems, slots and no bursts 2 each.
    QCOMPARE(dictionary->layout().imageSize(TierIndex(0)), 18 + 34 + 66 + 26 + 36 + 2 + 2);
    QCOMPARE(
        dictionary->layout().recordOffset(TierIndex(0), *dictionary->structureByName(QStringLiteral("Member")), {2, 3}),
        18 + 34 + 66 + 26 + 12 + 2 + 2 * 2);
}

void DictionaryLoaderTest::dependenciesAreTurnedRound() {
    const auto dictionary = SmallDictionary::make();
    const DependencyIndex &dependencies = dictionary->dependencies();
    const auto index = [&](const char *id) { return dictionary->indexOf(QString::fromLatin1(id)); };
    const auto contains = [](std::span<const FieldIndex> list, FieldIndex field) {
        return std::ranges::count(list, field) == 1;
    };
    QVERIFY(contains(dependencies.enables(index("Owner")), index("Delay")));
    QVERIFY(contains(dependencies.enables(index("Calls")), index("Boost")));
    QVERIFY(contains(dependencies.enables(index("Network")), index("Boost")));
    QVERIFY(contains(dependencies.enables(index("Calls")), index("GroupTone")));
    QVERIFY(contains(dependencies.contents(index("Band")), index("Tx")));
    QVERIFY(contains(dependencies.resets(index("Power")), index("Boost")));
    QVERIFY(contains(dependencies.followers(index("Rx")), index("Tx")));
    const auto structure = [&](const char *name) { return *dictionary->structureByName(QString::fromLatin1(name)); };
    QVERIFY(contains(dependencies.references(structure("Channel")), index("Start")));
    QVERIFY(contains(dependencies.enablesByRecords(structure("Member")), index("GroupName")));
    QVERIFY(dependencies.enables(index("Rx")).empty());
}

void DictionaryLoaderTest::widthsHoldTheLongestValue() {
    const auto dictionary = SmallDictionary::make();
    const auto width = [&](const char *id) { return dictionary->find(QString::fromLatin1(id))->width; };
    QCOMPARE(width("Rx"), 10);    // 174.000000
    QCOMPARE(width("Offset"), 5); // -10.5
    QCOMPARE(width("Owner"), 6);
    QCOMPARE(width("ChannelID"), 1);
    QCOMPARE(width("Band"), 9); // High band
    QCOMPARE(dictionary->find(QStringLiteral("Offset"))->validationString(), QStringLiteral("0123456789.-"));
}

QTEST_GUILESS_MAIN(DictionaryLoaderTest)
#include "dictionary_loader_test.moc"
