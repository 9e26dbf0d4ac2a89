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
    ok = accept(*field, record, value, std::get<StoredValue>(result));
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

bool EditOperations::accept(const FieldDefinition &field, RecordAddress record, const QVariant &given,
                            const StoredValue &value) {
    const LimitShift shift(mState.current(), field.index, record);
    if (shift.concerns(value) && !mayShift(field, shift.displaced(value)))
        return false;
    Changes changes = RecordEditor(mState.current()).setValue(field.index, record, value);
    shift.moveInside(mState.current(), changes);
    mState.positions().follow(mState.current(), changes);
    mState.journal.record(mState.tier(), changes);
    const QString shown = FieldReader(mState.current()).shown(field.index, record);
    const bool showsValue = ValueText::of(mFields.GetValue(field.id, record.number)) == ValueText::of(given);
    if (changes.empty()) {
        // The control may hold another spelling of the value.
        mNotifier.raiseValues({ValueStep{field.index, record, value, value}}, {field.index, record, showsValue});
        return true;
    }
    mNotifier.raiseValues(changes, {field.index, record, showsValue});
    mState.events.raise([](TransformerEvents &listener) { listener.TransformerEvents_FieldHasChanged(); });
    const QString where = record.number > 0 ? QStringLiteral(" (%1)").arg(record.number) : QString();
    mState.events.lastAction(field.label, QStringLiteral("= %1%2").arg(shown, where));
    mState.tellWriteFailure();
    return true;
}

// Other limits move the values outside them to their defaults.
bool EditOperations::mayShift(const FieldDefinition &field, const std::vector<LimitShift::Place> &places) {
    constexpr std::size_t kToldAtMost = 40;
    if (places.empty())
        return mState.events.ask(QStringLiteral("%0:S is a fact of the radio. Do you want to change it?"),
                                 {field.label});
    QStringList records;
    for (const LimitShift::Place &place : places) {
        const StructureIndex structure = mState.dictionary.field(place.field).structure;
        const QString number = QString::number(mState.current().identityOf(structure, place.record));
        if (std::size_t(records.size()) < kToldAtMost && !records.contains(number))
            records.append(number);
    }
    if (records.size() == kToldAtMost)
        records.append(QStringLiteral("..."));
    const RecordStructure &moved = mState.dictionary.structure(mState.dictionary.field(places.front().field).structure);
    return mState.events.ask(
        QStringLiteral("Changing %0:S sets the frequencies that lie outside it to its default. "
                       "%1:S: %2:S.%3:SDo you want to continue?"),
        {field.label, moved.navigatorRecords, records.join(QStringLiteral(", ")), QStringLiteral("\n")});
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
