#include "edit_operations.h"

#include "record_editor.h"
#include "rule_evaluator.h"
#include "value_text.h"
#include "value_validator.h"

void EditOperations::SetValue(const QString &uiid, const QVariant &value, qint32 recordNr, bool &ok) {
    ok = false;
    if (mState.dictionary.find(uiid) == nullptr) {
        if (const std::optional<StructureIndex> structure = mState.dictionary.structureByPosition(uiid)) {
            setPosition(mState.dictionary.structure(*structure), value, ok);
            return;
        }
    }
    const FieldDefinition *field = mState.findField(uiid);
    if (field == nullptr)
        return;
    const RecordAddress record = mState.address(field->structure, recordNr);
    if (!mayBeSet(*field, record))
        return;
    const ValueResult result = ValueValidator(mState.current()).fromBoundary(field->index, record, value);
    if (const auto *fault = std::get_if<ValueFault>(&result)) {
        mState.tell(RefusalText::ofValue(*field, *fault));
        return;
    }
    accept(*field, record, value, std::get<StoredValue>(result));
    ok = true;
}

// A field whose rule disables it keeps its value and may be given another; what the tier, the version, the access level
// or the radio itself withholds may not.
bool EditOperations::mayBeSet(const FieldDefinition &field, RecordAddress record) {
    if (!mState.current().exists(field.structure, record)) {
        mState.events.tell(QStringLiteral("%0:S cannot be set: there is no record %1:S."),
                           {field.label, QString::number(record.number)});
        return false;
    }
    if (!RuleEvaluator(mState.current()).hasField(field.index)) {
        mState.events.tell(QStringLiteral("%0:S does not exist in a %1:S with database version %2:S."),
                           {field.label, mState.dictionary.tier(mState.tier()).caption,
                            mState.dictionary.versionName(mState.current().versionLevel())});
        return false;
    }
    if (field.readOnly || !field.isStored()) {
        mState.events.tell(QStringLiteral("%0:S is given by the radio and cannot be set."), {field.label});
        return false;
    }
    if (field.access > mState.accessLevel) {
        mState.events.tell(QStringLiteral("%0:S may not be changed at the present access level."), {field.label});
        return false;
    }
    return true;
}

void EditOperations::accept(const FieldDefinition &field, RecordAddress record, const QVariant &given,
                            const StoredValue &value) {
    const Changes changes = RecordEditor(mState.current()).setValue(field.index, record, value);
    mState.positions().follow(mState.current(), changes);
    mState.journal.record(mState.tier(), changes);
    const QString shown = FieldReader(mState.current()).shown(field.index, record);
    const bool showsValue = ValueText::of(mFields.GetValue(field.id, record.number)) == ValueText::of(given);
    if (changes.empty()) {
        // The control may hold another spelling of the value.
        mNotifier.raiseValues({ValueStep{field.index, record, value, value}}, {field.index, record, showsValue});
        return;
    }
    mNotifier.raiseValues(changes, {field.index, record, showsValue});
    mState.events.raise([](TransformerEvents &listener) { listener.TransformerEvents_FieldHasChanged(); });
    const QString where = record.number > 0 ? QStringLiteral(" (%1)").arg(record.number) : QString();
    mState.events.lastAction(field.label, QStringLiteral(": %1%2").arg(shown, where));
    tellWriteFailure();
}

void EditOperations::setPosition(const RecordStructure &structure, const QVariant &value, bool &ok) {
    const qint32 position = ValueText::toIntegerOr(value, -1);
    const qint32 before = mState.positions().position(structure.index);
    ok = mState.positions().setPosition(mState.current(), structure.index, position);
    if (!ok) {
        mState.events.tell(QStringLiteral("There is no %0:S with the number %1:S."),
                           {structure.label, ValueText::of(value)});
        return;
    }
    if (position == before)
        return;
    for (const StructureIndex child : structure.children) {
        const QString guide = mState.dictionary.structure(child).guide;
        mState.events.raise(
            [&guide](TransformerEvents &listener) { listener.TransformerEvents_RefreshGridByUIID(guide); });
    }
}

void EditOperations::SetDataChanged() {
    mState.journal.touchForm();
    mState.events.raise([](TransformerEvents &listener) { listener.TransformerEvents_FieldHasChanged(); });
}

void EditOperations::tellWriteFailure() {
    if (mState.journal.takeWriteFailure())
        mState.events.tell(
            QStringLiteral("The edit journal in %0:S cannot be written: until you save, your changes are "
                           "not protected against a crash. Check that the disk is not full."),
            {mState.places.journalFolder});
}

void EditOperations::CopyFieldToTier(const QString &uiid, const QString &tierKey) {
    const FieldDefinition *field = mState.findField(uiid);
    const std::optional<TierIndex> target = mState.dictionary.tierByKey(tierKey);
    if (field == nullptr || !target || *target == mState.tier())
        return;
    TierData &other = mState.document.data.tier(*target);
    const RecordStructure &structure = mState.dictionary.structure(field->structure);
    // A field of a grid stands for its whole column, any other for the current record.
    const bool wholeColumn = !structure.isRadio() && structure.position.isEmpty();
    const qint32 shown = mState.positions().position(structure.index);
    const qint32 from = wholeColumn ? 1 : shown;
    const qint32 to = wholeColumn ? mFields.GetNumberOfRecords(uiid) : shown;
    QStringList refused;
    Changes changes;
    for (qint32 number = from; number <= to; ++number) {
        const RecordAddress record = structure.isRadio() ? RecordAddress() : mState.address(structure.index, number);
        const QString place =
            record.number == 0 ? field->label : QStringLiteral("%1 (%2)").arg(field->label).arg(number);
        if (!field->isStored() || field->readOnly || !RuleEvaluator(other).hasField(field->index) ||
            !other.exists(structure.index, record)) {
            refused.append(place);
            continue;
        }
        const StoredValue value = mState.current().value(field->index, record);
        if (ValueValidator(other).check(field->index, record, value)) {
            refused.append(place);
            continue;
        }
        const Changes made = RecordEditor(other).setValue(field->index, record, value);
        changes.insert(changes.end(), made.begin(), made.end());
    }
    mState.journal.record(*target, changes);
    if (!refused.isEmpty())
        mState.events.tell(QStringLiteral("These values have no place in %0:S and were not copied: %1:S."),
                           {mState.dictionary.tier(*target).caption, refused.join(QStringLiteral(", "))});
    tellWriteFailure();
}
