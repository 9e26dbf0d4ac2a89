#include "tier_copy.h"

#include "identity_plan.h"
#include "record_editor.h"
#include "rule_evaluator.h"
#include "translation.h"
#include "value_validator.h"

void TierCopy::copy(const QString &uiids, const QString &tierKey) {
    const std::optional<TierIndex> tier = mState.dictionary.tierByKey(tierKey);
    const QStringList list = uiids.split(u'|');
    if (!tier || *tier == mState.tier())
        return;
    Target target{*tier, mState.document.data.tier(*tier), {}, {}};
    for (const QString &uiid : list) {
        const FieldDefinition *field = mState.findField(uiid);
        if (field == nullptr)
            continue;
        const RecordStructure &structure = mState.dictionary.structure(field->structure);
        copyField(*field, list.size() > 1 || (!structure.isRadio() && structure.position.isEmpty()), target);
    }
    mState.positionsOf(*tier).follow(target.data, target.changes);
    mState.journal.record(*tier, target.changes);
    tell(target);
    mState.tellWriteFailure();
}

void TierCopy::copyField(const FieldDefinition &field, bool wholeColumn, Target &target) {
    const RecordStructure &structure = mState.dictionary.structure(field.structure);
    const qint32 parent = mState.address(structure.index, 1).parent;
    const qint32 shown = structure.isRadio() ? 0 : mState.positions().position(structure.index);
    const qint32 from = wholeColumn ? 1 : shown;
    const qint32 to = wholeColumn ? mState.current().recordCount(structure.index, parent) : shown;
    const bool hasPlace = field.isStored() && !field.readOnly && RuleEvaluator(target.data).hasField(field.index);
    std::vector<RecordAddress> records;
    for (qint32 number = from; number <= to; ++number) {
        const RecordAddress record{parent, number};
        if (!mState.current().exists(structure.index, record))
            continue;
        if (hasPlace && target.data.exists(structure.index, record))
            records.push_back(record);
        else
            refuse(field, record, target);
    }
    if (field.kind == FieldKind::Identity)
        copyIdentities(field, records, target);
    else
        copyValues(field, records, target);
}

void TierCopy::copyValues(const FieldDefinition &field, const std::vector<RecordAddress> &records, Target &target) {
    const ValueValidator validator(target.data);
    RecordEditor editor(target.data);
    for (const RecordAddress record : records) {
        const StoredValue value = mState.current().value(field.index, record);
        if (validator.check(field.index, record, value)) {
            refuse(field, record, target);
            continue;
        }
        const Changes made = editor.setValue(field.index, record, value);
        target.changes.insert(target.changes.end(), made.begin(), made.end());
    }
}

void TierCopy::copyIdentities(const FieldDefinition &field, const std::vector<RecordAddress> &records, Target &target) {
    if (records.empty())
        return;
    std::vector<IdentityPlan::Wish> wishes;
    wishes.reserve(records.size());
    for (const RecordAddress record : records)
        wishes.push_back({record.number, mState.current().number(field, record)});
    IdentityPlan plan(target.data, field.structure, records.front().parent);
    for (const std::size_t place : plan.settle(wishes))
        refuse(field, records[place], target);
    std::vector<std::pair<RecordAddress, qint32>> renumbered;
    for (std::size_t place = 0; place < records.size(); ++place) {
        if (wishes[place].identity)
            renumbered.emplace_back(records[place], *wishes[place].identity);
    }
    const Changes made = RecordEditor(target.data).renumber(field.structure, renumbered);
    target.changes.insert(target.changes.end(), made.begin(), made.end());
}

void TierCopy::refuse(const FieldDefinition &field, RecordAddress record, Target &target) {
    target.refused.append(record.number == 0 ? Translation::Piece(field.label)
                                             : Translation::Piece(QStringLiteral("%0:S (%1:S)"),
                                                                  {field.label, QString::number(record.number)}));
}

void TierCopy::tell(const Target &target) {
    constexpr qsizetype kToldAtMost = 40;
    if (target.refused.isEmpty())
        return;
    QStringList places = target.refused.first(std::min(target.refused.size(), kToldAtMost));
    if (target.refused.size() > kToldAtMost)
        places.append(
            Translation::Piece(QStringLiteral("(%0:S more)"), {QString::number(target.refused.size() - kToldAtMost)}));
    mState.events.tell(
        QStringLiteral("These values have no place in %0:S and were not copied: %1:S."),
        {mState.dictionary.tier(target.index).caption, Translation::Pieces(places, QStringLiteral(", "))});
}
