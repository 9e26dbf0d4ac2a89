#include "model_test_support.h"
#include "rule_evaluator.h"

#include <QTest>

// When a field can be edited: rule, tier, version and access level, each by itself.
class RuleEvaluatorTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void aRuleFollowsItsFields_data();
    void aRuleFollowsItsFields();
    void accessLevelsOpenFromBelow();
    void versionAndTierTakeFieldsAway();
    void readOnlyKindsAndMissingRecordsAreNeverEnabled();
};

namespace {

constexpr qint32 kHighest = 80;

struct Setting {
    const char *id;
    RecordAddress record;
    StoredValue value;
};
using Settings = std::vector<Setting>;

} // namespace

Q_DECLARE_METATYPE(Settings)

void RuleEvaluatorTest::aRuleFollowsItsFields_data() {
    QTest::addColumn<QString>("id");
    QTest::addColumn<qint32>("parent");
    QTest::addColumn<qint32>("number");
    QTest::addColumn<Settings>("settings");
    QTest::addColumn<bool>("enabled");
    const auto row = [](const char *name, const char *id, RecordAddress record, const Settings &settings,
                        bool enabled) {
        QTest::newRow(name) << QString::fromLatin1(id) << record.parent << record.number << settings << enabled;
    };
    const StoredValue abc(QStringLiteral("ABC"));
    row("all: one of two fails", "Delay", {}, {}, false);
    row("all: both hold", "Delay", {}, {{"Owner", {}, abc}}, true);
    row("all: the other fails", "Delay", {}, {{"Owner", {}, abc}, {"Beep", {}, 0}}, false);
    row("via: the network of this channel", "Boost", {0, 1}, {{"Calls", {0, 1}, 1}}, true);
    row("via: not that of the next channel", "Boost", {0, 2}, {{"Calls", {0, 1}, 1}, {"Network", {0, 2}, 2}}, false);
    row("via: a dangling reference", "Boost", {0, 1}, {{"Calls", {0, 1}, 1}, {"Network", {0, 1}, 4}}, false);
    row("records: one is not above one", "GroupName", {0, 2}, {}, false);
    row("records: of this parent only", "GroupName", {0, 1}, {}, true);
    row("some: none of them", "GroupTone", {0, 1}, {}, false);
    row("some: the last one", "GroupTone", {0, 1}, {{"Calls", {0, 2}, 1}}, true);
    row("parent: its own", "MemberChannel", {1, 1}, {{"GroupTone", {0, 1}, 1}}, false);
    row("parent: not the neighbour's", "MemberChannel", {2, 1}, {{"GroupTone", {0, 1}, 1}}, true);
}

void RuleEvaluatorTest::aRuleFollowsItsFields() {
    QFETCH(QString, id);
    QFETCH(qint32, parent);
    QFETCH(qint32, number);
    QFETCH(Settings, settings);
    QFETCH(bool, enabled);
    ModelFixture f;
    f.append("Network", 1);
    f.append("Group", 2);
    f.append("Member", 2, 1);
    f.append("Member", 1, 2);
    for (const Setting &setting : settings)
        f.data.setValue(f.field(setting.id), setting.record, setting.value);
    QCOMPARE(RuleEvaluator(f.data).isEnabled(f.dictionary->indexOf(id), {parent, number}, kHighest), enabled);
}

void RuleEvaluatorTest::accessLevelsOpenFromBelow() {
    ModelFixture f;
    f.set("Calls", {0, 1}, 1);
    const RuleEvaluator rules(f.data);
    for (const qint32 level : {20, 40, 60, 80}) {
        QCOMPARE(rules.isEnabled(f.field("Rx"), {0, 1}, level), level >= 40);
        QCOMPARE(rules.isEnabled(f.field("Boost"), {0, 1}, level), level >= 80);
    }
}

void RuleEvaluatorTest::versionAndTierTakeFieldsAway() {
    ModelFixture f;
    const RuleEvaluator rules(f.data);
    const ListItem &turbo = *f.dictionary->find(QStringLiteral("Power"))->itemByValue(2);
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

void RuleEvaluatorTest::readOnlyKindsAndMissingRecordsAreNeverEnabled() {
    ModelFixture f;
    const RuleEvaluator rules(f.data);
    QVERIFY(!rules.isEnabled(f.field("NetworkID"), {0, 1}, kHighest));
    QVERIFY(rules.isEnabled(f.field("Rx"), {0, 2}, kHighest));
    QVERIFY(!rules.isEnabled(f.field("Rx"), {0, 3}, kHighest));
    QVERIFY(!rules.isEnabled(f.field("Rx"), {0, 0}, kHighest));
    QVERIFY(rules.isEnabled(f.field("Beep"), {0, 0}, kHighest));
    QVERIFY(rules.isEnabled(f.field("Beep"), {0, 1}, kHighest));
}

QTEST_GUILESS_MAIN(RuleEvaluatorTest)
#include "rule_evaluator_test.moc"
