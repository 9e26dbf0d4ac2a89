#include "run_time_error.h"
#include "small_dictionary.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QString faultOf(const std::vector<DictionaryFile> &files) {
    try {
        (void)DictionaryLoader::load(files);
    } catch (const RunTimeError &error) {
        return error.Description;
    }
    return u"(no fault found)"_s;
}

} // namespace

// Faults that the loader must find, each put into a dictionary that is otherwise good.
class DictionaryLoaderTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void aFaultIsRefusedWithFileOwnerAndKey() {
        // Single quotes stand for double ones. The message starts with the file, unless a bar stands in front.
        struct Row {
            const char *name, *file, *from, *to, *start;
        };
        const auto quoted = [](const char *text) { return QByteArray(text).replace('\'', '"'); };
        const Row rows[] = {
            {"broken JSON", "radio", "'Beep',", "'Beep'", "byte "},
            {"unknown key of a field", "radio", "'unit': 'dB'", "'units': 'dB'", "Offset: units: "},
            {"unknown key of a rule", "members", "'is': [0]", "'is': [0], 'if': 1", "MemberChannel: if: "},
            {"unknown key of an item", "lists", "'level': 2", "'levels': 2", "POWER: levels: "},
            {"missing label", "radio", "'label': 'Beep', ", "", "Beep: label: "},
            {"label over 24 characters", "radio", "'label': 'Beep'", "'label': 'Beep at every key pressed'",
             "Beep: label: "},
            {"unknown kind", "radio", "'kind': 'flag'", "'kind': 'bool'", "Beep: kind: "},
            {"duplicate field", "networks", "'id': 'Calls'", "'id': 'Beep'", "Beep: id: "},
            {"version levels with a gap", "tiers", "'level': 2", "'level': 3", "file: level: "},
            {"unknown tier of a tree entry", "tiers", "['Full'] }", "['Half'] }", "frmSystem: tiers: "},
            {"child of a child", "structures", "'parent': 'System', 'least'", "'parent': 'Slot', 'least'",
             "Burst: parent: "},
            {"two radios", "structures", "'guide': 'NetworkID', ", "", "file: structures: "},
            {"fixed rows that are not", "structures", "'least': 3, 'most': 3", "'least': 2, 'most': 3",
             "Burst: fixed: "},
            {"capacity below the least", "structures", "'least': 1, 'most': 4", "'least': 5, 'most': 4",
             "Network: most: "},
            {"guide of another structure", "structures", "'guide': 'BurstNr'", "'guide': 'SlotText'",
             "|SlotText: names two structures"},
            {"access between two levels", "channels", "'access': 80", "'access': 70", "Boost: access: "},
            {"number without limits", "radio", "'min': 20, ", "", "Delay: min: "},
            {"limits the wrong way round", "radio", "'min': 20, ", "'min': 600, ", "Delay: max: "},
            {"step of nothing", "radio", "'step': 20", "'step': 0", "Delay: step: "},
            {"limit with more decimals than the field", "radio", "'max': 10.5", "'max': 10.55", "Offset: max: "},
            {"default below the minimum", "radio", "'default': 20", "'default': 0", "Delay: default: "},
            {"default off the step", "radio", "'default': 20", "'default': 30", "Delay: default: "},
            {"default off both rasters", "channels", "'defaults': [45, 160] } },\n  { 'id': 'Tx'",
             "'defaults': [45, 160.001] } },\n  { 'id': 'Tx'", "Rx: defaults: "},
            {"default outside its own limits row", "channels", "'defaults': [45, 160] } },\n  { 'id': 'Tx'",
             "'defaults': [160, 160] } },\n  { 'id': 'Tx'", "Rx: defaults: "},
            {"missing default", "radio", "'default': 1 ", "'fact': true ", "Beep: default: "},
            {"default that is no item", "channels", "'default': 'Low'", "'default': 'Middle'", "Power: default: "},
            {"flag of 2", "radio", "'default': 1 ", "'default': 2 ", "Beep: default: "},
            {"default text too long", "radio", "'default': '', 'mask'", "'default': 'ABCABCA', 'mask'",
             "Owner: default: "},
            {"None where there is none", "channels", "'default': 1, 'to'", "'default': 'None', 'to'",
             "Network: default: "},
            {"limits for too few items", "channels", "[[40, 50], [136, 174]], 'defaults': [45, 160] }, 'follows'",
             "[[136, 174]], 'defaults': [160] }, 'follows'", "Tx: limits: "},
            {"unknown list", "channels", "'list': 'POWER'", "'list': 'POWERS'", "Power: list: "},
            {"item text twice", "networks", "['None', 'Selcall']", "['None', 'None']", "Calls: items: "},
            {"item value twice", "bursts", "'value': 7", "'value': 0", "BurstTone: items: "},
            {"reference to nothing", "channels", "'to': 'Network'", "'to': 'Net'", "Network: to: "},
            {"reference to rows without a scope", "systems", "'to': 'Slot'", "'to': 'Burst'", "Favourite: to: "},
            {"text for a target missing", "radio", ", 'Group': 'Group %1'", "", "Start: Group: "},
            {"rule over an unknown field", "members", "'GroupTone'", "'GroupTune'", "MemberChannel: field: "},
            {"rule with an unknown item", "channels", "'is': ['Selcall']", "'is': ['Sellcall']", "Boost: is: "},
            {"rule without a test", "members", ", 'is': [0]", "", "MemberChannel: field: "},
            {"rule with two tests", "members", "'is': [0]", "'is': [0], 'above': 0", "MemberChannel: field: "},
            {"rule that cannot be reached", "members", "'GroupTone'", "'Rx'", "MemberChannel: field: "},
            {"via that leads elsewhere", "channels", "'via': 'Network'", "'via': 'Start'", "Boost: via: "},
            {"text test of a number", "radio", "'field': 'Owner', 'empty'", "'field': 'Beep', 'empty'",
             "Delay: empty: "},
            {"reset by another structure", "channels", "'resetWhenChanges': 'Power'", "'resetWhenChanges': 'Band'",
             "Boost: resetWhenChanges: "},
            {"enable rules in a circle", "radio", "'default': 1 }",
             "'default': 1, 'enabledWhen': { 'field': 'Delay', 'above': 20 } }", "|Beep: depends on itself"},
            {"place outside the record", "slots", "'at': [0, 8]", "'at': [1, 8]", "SlotText: at: "},
            {"place too small for the text", "slots", "'at': [0, 8]", "'at': [0, 7]", "SlotText: at: "},
            {"place too small for the number", "radio", "'at': [14, 2]", "'at': [14, 1]", "Delay: at: "},
            {"place too small for a mixed reference", "radio", "'at': [8, 4]", "'at': [8, 2]", "Start: at: "},
            {"overlapping bit", "radio", "'at': [7, 0, 0]", "'at': [6, 0, 3]", "|Beep: at: overlaps 'Owner'"},
        };
        for (const auto &[name, file, from, to, start] : rows) {
            const QString json = QLatin1String(file) + u".json"_s;
            const QString said = QString::fromLatin1(quoted(start));
            const QString fault = faultOf(SmallDictionary::filesWith(json, quoted(from), quoted(to)));
            QVERIFY2(fault.startsWith(*start == '|' ? said.mid(1) : json + u": "_s + said),
                     qPrintable(QLatin1String(name) + u": "_s + fault));
        }
    }

    void aMissingFileIsNamed() {
        std::vector<DictionaryFile> files = SmallDictionary::files();
        files.erase(files.begin() + 1);
        QCOMPARE(faultOf(files), u"structures.json: the file is missing"_s);
    }

    void capacitiesOfChildrenFollowTheirParents() {
        const auto dictionary = SmallDictionary::make();
        const RecordStructure &slot = dictionary->structure(*dictionary->structureByName(u"Slot"_s));
        QCOMPARE(slot.in(TierIndex(0)).most, 0);
        QCOMPARE(slot.in(TierIndex(1)).most, 6);
        const RecordStructure &burst = dictionary->structure(*dictionary->structureByName(u"Burst"_s));
        QCOMPARE(burst.in(TierIndex(0)).most, 0);
        QCOMPARE(burst.in(TierIndex(1)).most, 3);
        // Radio 18, networks 34, channels 66, groups 26, members 3 x 12, systems, slots and no bursts 2 each.
        QCOMPARE(dictionary->layout().imageSize(TierIndex(0)), 18 + 34 + 66 + 26 + 36 + 2 + 2);
        QCOMPARE(dictionary->layout().recordOffset(TierIndex(0), *dictionary->structureByName(u"Member"_s), {2, 3}),
                 18 + 34 + 66 + 26 + 12 + 2 + 2 * 2);
    }

    void dependenciesAreTurnedRound() {
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
        const auto structure = [&](const char *name) {
            return *dictionary->structureByName(QString::fromLatin1(name));
        };
        QVERIFY(contains(dependencies.references(structure("Channel")), index("Start")));
        QVERIFY(contains(dependencies.enablesByRecords(structure("Member")), index("GroupName")));
        QVERIFY(dependencies.enables(index("Rx")).empty());
    }

    void widthsHoldTheLongestValue() {
        const auto dictionary = SmallDictionary::make();
        const auto width = [&](const char *id) { return dictionary->find(QString::fromLatin1(id))->width; };
        QCOMPARE(width("Rx"), 10);    // 174.000000
        QCOMPARE(width("Offset"), 5); // -10.5
        QCOMPARE(width("Owner"), 6);
        QCOMPARE(width("ChannelID"), 1);
        QCOMPARE(width("Band"), 9); // High band
        QCOMPARE(dictionary->find(u"Offset"_s)->validationString(), u"0123456789.-"_s);
    }
};

QTEST_GUILESS_MAIN(DictionaryLoaderTest)
#include "dictionary_loader_test.moc"
