#include "field_defaults.h"
#include "model_test_support.h"
#include "rows.h"
#include "run_time_error.h"

#include <QRandomGenerator>
#include <QTest>

using namespace Qt::StringLiterals;

using Reason = RecordRefusal::Reason;

// Edits and record operations with all that must go along, and the way back.
class RecordEditorTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void aRenumberedChannelTakesItsReferencesAlong() {
        ModelFixture f;
        f.append("Group", 1);
        f.append("Member", 2, 1);
        f.set("MemberChannel", {1, 1}, 1);
        f.set("MemberChannel", {1, 2}, 2);
        f.set("Start", {}, 2); // channel 2
        const Changes changes = f.set("ChannelID", {0, 2}, 7);
        QCOMPARE(f.number("MemberChannel", {1, 1}), 1);
        QCOMPARE(f.number("MemberChannel", {1, 2}), 7);
        QCOMPARE(f.number("Start"), 7);
        // A group of the same number is another record.
        f.set("Start", {}, ReferenceTargets::kPlaceFactor + 1);
        f.set("ChannelID", {0, 1}, 9);
        QCOMPARE(f.number("Start"), ReferenceTargets::kPlaceFactor + 1);
        QCOMPARE(changes.size(), std::size_t(3));
    }

    void aDeletedTargetBecomesNoneOrTakesItsMemberAlong() {
        ModelFixture f;
        f.append("Group", 2);
        f.append("Member", 3, 1);
        f.append("Member", 1, 2);
        for (const RecordAddress member : {RecordAddress{1, 1}, RecordAddress{1, 3}, RecordAddress{2, 1}})
            f.set("MemberChannel", member, 2);
        f.set("MemberChannel", {1, 2}, 1);
        f.set("Start", {}, 2);
        const TierData before = f.data;
        const RecordResult result = f.editor.deleteRecord(f.structure("Channel"), {0, 2});
        QVERIFY(result.done());
        QCOMPARE(f.number("Start"), 0);
        QCOMPARE(f.data.recordCount(f.structure("Member"), 1), 1);
        QCOMPARE(f.number("MemberChannel", {1, 1}), 1);
        QCOMPARE(f.data.recordCount(f.structure("Member"), 2), 0);
        f.data.apply(inverse(result.changes));
        QVERIFY(f.data.sameValues(before));
    }

    void aUsedNetworkIsNotDeletedAndItsUserIsNamed() {
        ModelFixture f;
        f.append("Network", 1);
        f.set("Network", {0, 2}, 2);
        const TierData before = f.data;
        const RecordResult result = f.editor.deleteRecord(f.structure("Network"), {0, 2});
        QVERIFY(!result.done());
        QCOMPARE(result.refusal->reason, Reason::InUse);
        QCOMPARE(result.refusal->usedBy, f.field("Network"));
        QCOMPARE(result.refusal->user, (RecordAddress{0, 2}));
        QVERIFY(f.data.sameValues(before));
        f.set("Network", {0, 2}, 1);
        QVERIFY(f.editor.deleteRecord(f.structure("Network"), {0, 2}).done());
    }

    void referencesByNumberFollowInsertDeleteAndMove() {
        ModelFixture f;
        f.append("Network", 1);
        f.set("Calls", {0, 2}, 1);
        f.set("Network", {0, 2}, 2);
        const StructureIndex network = f.structure("Network");
        QVERIFY(f.editor.insertRecord(network, {0, 1}).done());
        QCOMPARE(f.number("Network", {0, 1}), 2);
        QCOMPARE(f.number("Network", {0, 2}), 3);
        QCOMPARE(f.number("Calls", {0, 3}), 1);
        QVERIFY(f.editor.deleteRecord(network, {0, 1}).done());
        QCOMPARE(f.number("Network", {0, 1}), 1);
        QCOMPARE(f.number("Network", {0, 2}), 2);
        QVERIFY(f.editor.moveRecord(network, 0, 2, 1).done());
        QCOMPARE(f.number("Network", {0, 1}), 2);
        QCOMPARE(f.number("Network", {0, 2}), 1);
        QCOMPARE(f.number("Calls", {0, 1}), 1);
    }

    void childrenAndFlatRowsMoveWithTheirParents() {
        ModelFixture f;
        f.append("System", 3);
        QCOMPARE(f.data.recordCount(f.structure("Slot")), 6);
        QCOMPARE(f.data.recordCount(f.structure("Burst"), 3), 3);
        for (qint32 system = 1; system <= 3; ++system) {
            f.set("SlotText", {0, 2 * system - 1}, u"%1a"_s.arg(system));
            f.set("SlotText", {0, 2 * system}, u"%1b"_s.arg(system));
            f.set("BurstTone", {system, system}, 7);
        }
        QVERIFY(f.editor.moveRecord(f.structure("System"), 0, 1, 3).done());
        const auto slots = [&] {
            QStringList texts;
            for (qint32 slot = 1; slot <= f.data.recordCount(f.structure("Slot")); ++slot)
                texts.append(f.text("SlotText", {0, slot}));
            return texts.join(QLatin1Char(' '));
        };
        QCOMPARE(slots(), u"2a 2b 3a 3b 1a 1b"_s);
        QCOMPARE(f.number("BurstTone", {3, 1}), 7);
        QCOMPARE(f.number("BurstTone", {1, 1}), 0);
        QVERIFY(f.editor.moveRecord(f.structure("System"), 0, 3, 2).done());
        QCOMPARE(slots(), u"2a 2b 1a 1b 3a 3b"_s);
        QVERIFY(f.editor.deleteRecord(f.structure("System"), {0, 1}).done());
        QCOMPARE(slots(), u"1a 1b 3a 3b"_s);
        QCOMPARE(f.number("BurstTone", {1, 1}), 7);
        QCOMPARE(f.number("BurstTone", {2, 3}), 7);
    }

    void aReferenceToAFlatRowFollowsItsSystem() {
        ModelFixture f;
        f.append("System", 3);
        f.set("Favourite", {0, 1}, 6); // second slot of system 3
        QVERIFY(f.editor.moveRecord(f.structure("System"), 0, 3, 1).done());
        QCOMPARE(f.number("Favourite", {0, 2}), 2);
        QVERIFY(f.editor.deleteRecord(f.structure("System"), {0, 3}).done());
        QCOMPARE(f.number("Favourite", {0, 2}), 2);
        const TierData before = f.data;
        const RecordResult result = f.editor.deleteRecord(f.structure("System"), {0, 1});
        QCOMPARE(f.number("Favourite", {0, 1}), 0);
        f.data.apply(inverse(result.changes));
        QVERIFY(f.data.sameValues(before));
    }

    void aCopyHasItsOwnIdentityAndItsChildren() {
        ModelFixture f;
        f.append("Group", 2);
        f.append("Member", 1, 1);
        f.set("MemberChannel", {1, 1}, 2);
        f.set("GroupName", {0, 1}, u"One"_s);
        const RecordResult result = f.editor.copyRecord(f.structure("Group"), {0, 1});
        QVERIFY(result.done());
        QCOMPARE(result.record, (RecordAddress{0, 2}));
        QCOMPARE(f.number("GroupID", {0, 2}), 3);
        QCOMPARE(f.text("GroupName", {0, 2}), u"One"_s);
        QCOMPARE(f.number("MemberChannel", {2, 1}), 2);
        QCOMPARE(f.number("GroupID", {0, 3}), 2);
    }

    void aFollowedFieldIsCopiedOnlyWhileBothAreEqual() {
        ModelFixture f;
        QCOMPARE(f.number("Tx", {0, 1}), 160000000);
        f.set("Rx", {0, 1}, 150000000);
        QCOMPARE(f.number("Tx", {0, 1}), 150000000);
        f.set("Tx", {0, 1}, 155000000);
        f.set("Rx", {0, 1}, 151000000);
        QCOMPARE(f.number("Tx", {0, 1}), 155000000);
        QCOMPARE(f.number("Tx", {0, 2}), 160000000);
    }

    void aChangedFieldResetsItsDependents() {
        ModelFixture f;
        f.set("Boost", {0, 1}, 9);
        f.set("Boost", {0, 2}, 8);
        const Changes none = f.set("Power", {0, 1}, 0); // as it was
        QVERIFY(none.empty());
        QCOMPARE(f.number("Boost", {0, 1}), 9);
        f.set("Power", {0, 1}, 1);
        QCOMPARE(f.number("Boost", {0, 1}), 3);
        QCOMPARE(f.number("Boost", {0, 2}), 8);
    }

    void limitsOfCapacityAreKept() {
        for (const auto &[name, record, remove, reason] : Rows<const char *, RecordAddress, bool, Reason>{
                 {"number 0", "Channel", {0, 0}, false, Reason::NoSuchRecord},
                 {"a gap behind the end", "Channel", {0, 4}, false, Reason::NoSuchRecord},
                 {"a member of no group", "Member", {1, 1}, false, Reason::NoSuchRecord},
                 {"a child without a parent", "Member", {0, 1}, false, Reason::NoSuchRecord},
                 {"a second radio", "Radio", {0, 1}, false, Reason::FixedRows},
                 {"a flat row by itself", "Slot", {0, 1}, false, Reason::FixedRows},
                 {"a fifth network", "Network", {0, 5}, false, Reason::Full},
                 {"behind the last channel", "Channel", {0, 3}, true, Reason::NoSuchRecord},
                 {"the radio", "Radio", {0, 0}, true, Reason::FixedRows},
             }) {
            ModelFixture f;
            f.append("Network", 3);
            const TierData before = f.data;
            const RecordResult result = remove ? f.editor.deleteRecord(f.structure(name), record)
                                               : f.editor.insertRecord(f.structure(name), record);
            QVERIFY(!result.done());
            QCOMPARE(result.refusal->reason, reason);
            QVERIFY(f.data.sameValues(before));
        }
    }

    void reorderingIsOnePermutation() {
        ModelFixture f;
        f.append("Network", 3);
        for (qint32 network = 1; network <= 4; ++network)
            f.set("Calls", {0, network}, network == 3 ? 1 : 0);
        f.set("Network", {0, 1}, 3);
        f.set("Network", {0, 2}, 4);
        const TierData before = f.data;
        const RecordResult result = f.editor.reorder(f.structure("Network"), 0, {4, 3, 1, 2});
        QCOMPARE(f.number("Calls", {0, 2}), 1);
        QCOMPARE(f.number("Network", {0, 1}), 2);
        QCOMPARE(f.number("Network", {0, 2}), 1);
        f.data.apply(inverse(result.changes));
        QVERIFY(f.data.sameValues(before));
        QVERIFY_THROWS_EXCEPTION(RunTimeError, (void)f.editor.reorder(f.structure("Network"), 0, {1, 2, 3, 3}));
    }

    // Undo gives the data before, redo the data after, and no reference is ever left dangling.
    void everyRandomRunIsTakenBackExactly() {
        for (quint32 seed = 1; seed <= 8; ++seed) {
            ModelFixture f;
            QRandomGenerator random(seed);
            const char *const structures[] = {"Network", "Channel", "Group", "Member", "System"};
            const auto any = [&](qint32 bound) { return qint32(random.bounded(bound)); };
            f.append("Group", 1);
            const TierData before = f.data;
            Changes all;
            int done = 0;
            for (int step = 0; step < 300; ++step) {
                const StructureIndex structure = f.structure(structures[any(5)]);
                const qint32 parent = f.dictionary->structure(structure).isScoped() ? 1 + any(3) : 0;
                const qint32 count = f.data.recordCount(structure, parent);
                const RecordAddress record{parent, 1 + any(count + 1)};
                RecordResult result;
                switch (any(6)) {
                case 0:
                    result = f.editor.insertRecord(structure, record);
                    break;
                case 1:
                    result = f.editor.copyRecord(structure, record);
                    break;
                case 2:
                    result = f.editor.deleteRecord(structure, record);
                    break;
                case 3:
                    result = f.editor.moveRecord(structure, parent, record.number, 1 + any(count + 1));
                    break;
                default:
                    for (const FieldIndex index : f.dictionary->structure(structure).stored) {
                        const FieldDefinition &field = f.dictionary->field(index);
                        if (field.kind != FieldKind::Reference || !f.data.exists(structure, record))
                            continue;
                        const StructureIndex target = field.to.structures.front();
                        const qint32 targets = f.data.recordCount(target);
                        if (targets > 0)
                            result.changes =
                                f.editor.setValue(index, record, f.data.identityOf(target, {0, 1 + any(targets)}));
                    }
                }
                done += result.changes.empty() ? 0 : 1;
                all.insert(all.end(), result.changes.begin(), result.changes.end());
            }
            QVERIFY2(done > 60, "hardly any step took effect");
            for (const FieldDefinition &field : f.dictionary->fields()) {
                if (field.kind != FieldKind::Reference)
                    continue;
                for (const RecordAddress record : f.data.records(field.structure)) {
                    const qint32 stored = f.data.number(field, record);
                    const StructureIndex target = field.to.structureOf(stored);
                    QVERIFY(!target.isValid() ||
                            f.data.recordByIdentity(target, field.to.identityOf(stored)).has_value());
                }
            }
            const TierData after = f.data;
            f.data.apply(inverse(all));
            QVERIFY(f.data.sameValues(before));
            f.data.apply(all);
            QVERIFY(f.data.sameValues(after));
        }
    }
};

QTEST_GUILESS_MAIN(RecordEditorTest)
#include "record_editor_test.moc"
