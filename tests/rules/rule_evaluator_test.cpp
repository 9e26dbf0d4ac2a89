#include "model_test_support.h"
#include "rows.h"
#include "rule_evaluator.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr qint32 kHighest = 80;

struct Setting {
    const char *id;
    RecordAddress record;
    StoredValue value;
};
using Settings = std::vector<Setting>;

} // namespace

// When a field can be edited: rule, tier, version and access level, each by itself.
class RuleEvaluatorTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void aRuleFollowsItsFields() {
        const StoredValue abc(u"ABC"_s);

        for (const auto &[id, record, settings, enabled] : Rows<QString, RecordAddress, Settings, bool>{
                 {"all: one of two fails", u"Delay"_s, {}, {}, false},
                 {"all: both hold", u"Delay"_s, {}, {{"Owner", {}, abc}}, true},
                 {"all: the other fails", u"Delay"_s, {}, {{"Owner", {}, abc}, {"Beep", {}, 0}}, false},
                 {"via: the network of this channel", u"Boost"_s, {0, 1}, {{"Calls", {0, 1}, 1}}, true},
                 {"via: not that of the next channel",
                  u"Boost"_s,
                  {0, 2},
                  {{"Calls", {0, 1}, 1}, {"Network", {0, 2}, 2}},
                  false},
                 {"via: a dangling reference",
                  u"Boost"_s,
                  {0, 1},
                  {{"Calls", {0, 1}, 1}, {"Network", {0, 1}, 4}},
                  false},
                 {"records: one is not above one", u"GroupName"_s, {0, 2}, {}, false},
                 {"records: of this parent only", u"GroupName"_s, {0, 1}, {}, true},
                 {"some: none of them", u"GroupTone"_s, {0, 1}, {}, false},
                 {"some: the last one", u"GroupTone"_s, {0, 1}, {{"Calls", {0, 2}, 1}}, true},
                 {"parent: its own", u"MemberChannel"_s, {1, 1}, {{"GroupTone", {0, 1}, 1}}, false},
                 {"parent: not the neighbour's", u"MemberChannel"_s, {2, 1}, {{"GroupTone", {0, 1}, 1}}, true},
             }) {
            ModelFixture f;
            f.append("Network", 1);
            f.append("Group", 2);
            f.append("Member", 2, 1);
            f.append("Member", 1, 2);
            for (const Setting &setting : settings)
                f.data.setValue(f.field(setting.id), setting.record, setting.value);
            QCOMPARE(RuleEvaluator(f.data).isEnabled(f.dictionary->indexOf(id), record, kHighest), enabled);
        }
    }

    void accessLevelsOpenFromBelow() {
        ModelFixture f;
        f.set("Calls", {0, 1}, 1);
        const RuleEvaluator rules(f.data);
        for (const qint32 level : {20, 40, 60, 80}) {
            QCOMPARE(rules.isEnabled(f.field("Rx"), {0, 1}, level), level >= 40);
            QCOMPARE(rules.isEnabled(f.field("Boost"), {0, 1}, level), level >= 80);
        }
    }

    void versionAndTierTakeFieldsAway() {
        ModelFixture f;
        const RuleEvaluator rules(f.data);
        const ListItem &turbo = *f.dictionary->find(u"Power"_s)->itemByValue(2);
        QVERIFY(rules.hasField(f.field("Delay")));
        QVERIFY(rules.hasItem(turbo));
        f.data.setVersionLevel(1);
        QVERIFY(!rules.hasField(f.field("Delay")));
        QVERIFY(!rules.hasItem(turbo));
        QVERIFY(rules.hasField(f.field("SlotText")));
        const TierData plain(*f.dictionary, TierIndex(0));
        QVERIFY(!RuleEvaluator(plain).hasField(f.field("SlotText")));
        QVERIFY(!RuleEvaluator(plain).hasItem(turbo));
    }

    void readOnlyKindsAndMissingRecordsAreNeverEnabled() {
        ModelFixture f;
        const RuleEvaluator rules(f.data);
        QVERIFY(!rules.isEnabled(f.field("NetworkID"), {0, 1}, kHighest));
        QVERIFY(rules.isEnabled(f.field("Rx"), {0, 2}, kHighest));
        QVERIFY(!rules.isEnabled(f.field("Rx"), {0, 3}, kHighest));
        QVERIFY(!rules.isEnabled(f.field("Rx"), {0, 0}, kHighest));
        QVERIFY(rules.isEnabled(f.field("Beep"), {0, 0}, kHighest));
        QVERIFY(rules.isEnabled(f.field("Beep"), {0, 1}, kHighest));
    }
};

QTEST_GUILESS_MAIN(RuleEvaluatorTest)
#include "rule_evaluator_test.moc"
