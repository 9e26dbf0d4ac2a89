#include "record_import.h"

#include "identity_plan.h"
#include "new_records.h"
#include "rule_evaluator.h"
#include "translation.h"
#include "value_text.h"

#include <algorithm>

namespace {
constexpr qint32 kEnglish = 1;

// Whether an edit of the first field may change what the second one can take or has.
bool comesBefore(const Dictionary &dictionary, FieldIndex first, FieldIndex second) {
    const DependencyIndex &dependencies = dictionary.dependencies();
    return std::ranges::any_of(
        std::array{dependencies.contents(first), dependencies.resets(first), dependencies.followers(first),
                   dependencies.enables(first)},
        [second](std::span<const FieldIndex> list) { return std::ranges::find(list, second) != list.end(); });
}
} // namespace

RecordImport::RecordImport(TierData &data, qint32 accessLevel, const Translation &translation)
    : mData(data), mEditor(data), mAccessLevel(accessLevel), mTranslation(translation) {}

RecordImport::Outcome RecordImport::run(const Rows &rows) {
    Outcome outcome;
    orderCells(rows);
    makeRecords(rows, outcome);
    for (std::size_t row = 0; row < mRecords.size(); ++row)
        setCells(rows, row, outcome);
    for (std::size_t row = rows.targets.size(); row < mRecords.size(); ++row)
        outcome.changes.emplace_back(
            InsertStep{rows.structure, mRecords[row], mData.recordImage(rows.structure, mRecords[row])});
    std::ranges::stable_sort(outcome.refused, {},
                             [](const RefusedCell &refused) { return std::pair(refused.row, refused.cell); });
    return outcome;
}

// The identity is no matter of single cells. Of the others, one that decides about another goes first.
void RecordImport::orderCells(const Rows &rows) {
    const Dictionary &dictionary = mData.dictionary();
    mOrder.clear();
    for (std::size_t cell = 0; cell < rows.fields.size(); ++cell) {
        const FieldIndex field = rows.fields[cell];
        const auto place = std::ranges::find_if(mOrder, [&](std::size_t other) {
            return field.isValid() && rows.fields[other].isValid() &&
                   comesBefore(dictionary, field, rows.fields[other]);
        });
        mOrder.insert(place, cell);
    }
}

void RecordImport::makeRecords(const Rows &rows, Outcome &outcome) {
    const RecordStructure &structure = mData.dictionary().structure(rows.structure);
    const qint32 count = mData.recordCount(rows.structure, rows.parent);
    const bool isFixed = structure.fixed || structure.isFlat();
    const qint32 most = isFixed ? count : structure.in(mData.tier()).most;
    const std::size_t wanted = rows.rows.size() - rows.targets.size();
    const std::size_t added = std::min(wanted, std::size_t(std::max(most - count, 0)));
    for (const qint32 target : rows.targets)
        mRecords.push_back({rows.parent, target});
    for (std::size_t i = 0; i < added; ++i)
        mRecords.push_back({rows.parent, count + 1 + qint32(i)});
    outcome.rowsLeft = wanted - added;
    if (outcome.rowsLeft > 0)
        outcome.noRoom = RecordRefusal{
            isFixed ? RecordRefusal::Reason::FixedRows : RecordRefusal::Reason::Full, rows.structure, most, {}, {}};
    outcome.added = qint32(added);
    outcome.changed = qint32(rows.targets.size());
    mNewIdentities.assign(added, 0);
    if (structure.identity.isValid())
        planIdentities(rows, outcome);
    const RecordResult appended = mEditor.appendRecords(rows.structure, rows.parent, mNewIdentities);
    if (!appended.done()) { // no parent that they could belong to
        mRecords.resize(rows.targets.size());
        outcome.noRoom = appended.refusal;
        outcome.rowsLeft = wanted;
        outcome.added = 0;
    }
    Changes unused; // they stand in the images that are taken at the end
    for (std::size_t row = rows.targets.size(); row < mRecords.size(); ++row)
        NewRecords::chooseFreeItems(mData, rows.structure, mRecords[row], unused);
}

void RecordImport::planIdentities(const Rows &rows, Outcome &outcome) {
    const FieldDefinition &field = mData.dictionary().field(mData.dictionary().structure(rows.structure).identity);
    const auto cell = std::size_t(std::ranges::find(rows.fields, field.index) - rows.fields.begin());
    const bool isOpen = cell < rows.fields.size() && field.access <= mAccessLevel;
    std::vector<IdentityPlan::Wish> wishes(mRecords.size());
    const auto refuse = [&](std::size_t row, const ValueFault &fault) {
        outcome.refused.push_back({row, cell, RefusalText::ofValue(field, fault)});
    };
    for (std::size_t row = 0; row < mRecords.size(); ++row) {
        wishes[row].record = row < rows.targets.size() ? mRecords[row].number : 0;
        if (!isOpen || qsizetype(cell) >= rows.rows[row].size())
            continue;
        const ValueResult parsed = ValueCodec::parseShown(field, rows.rows[row][qsizetype(cell)], field.limits);
        if (const auto *value = std::get_if<StoredValue>(&parsed))
            wishes[row].identity = value->number();
        else
            refuse(row, std::get<ValueFault>(parsed));
    }
    IdentityPlan plan(mData, rows.structure, rows.parent);
    for (const std::size_t row : plan.settle(wishes))
        refuse(row, {ValueFault::Kind::AlreadyUsed, field.limits, 0, rows.rows[row][qsizetype(cell)].trimmed()});
    std::vector<std::pair<RecordAddress, qint32>> renumbered;
    for (std::size_t row = 0; row < mRecords.size(); ++row) {
        const std::optional<qint32> identity = wishes[row].identity;
        if (row >= rows.targets.size())
            mNewIdentities[row - rows.targets.size()] = identity ? *identity : plan.nextFree().value_or(0);
        else if (identity)
            renumbered.emplace_back(mRecords[row], *identity);
    }
    outcome.changes = mEditor.renumber(rows.structure, renumbered);
}

void RecordImport::setCells(const Rows &rows, std::size_t row, Outcome &outcome) {
    for (const std::size_t cell : mOrder) {
        if (qsizetype(cell) < rows.rows[row].size())
            setCell(rows, row, cell, outcome);
    }
}

void RecordImport::setCell(const Rows &rows, std::size_t row, std::size_t cell, Outcome &outcome) {
    const FieldIndex index = rows.fields[cell];
    const QString &text = rows.rows[row][qsizetype(cell)];
    if (!index.isValid()) {
        if (!text.isEmpty())
            outcome.refused.push_back({row, cell, {QStringLiteral("There is no column for this cell."), {}}});
        return;
    }
    const FieldDefinition &field = mData.dictionary().field(index);
    const RecordAddress record = mRecords[row];
    const bool isLocked = !RuleEvaluator(mData).isEnabled(index, record, mAccessLevel);
    if (field.kind == FieldKind::Identity || isLocked || text == ValueText::undefined())
        return;
    const ValueResult value = ValueValidator(mData).fromShown(index, record, inEnglish(field, text));
    if (const auto *fault = std::get_if<ValueFault>(&value)) {
        outcome.refused.push_back({row, cell, RefusalText::ofValue(field, *fault)});
        return;
    }
    const Changes made = mEditor.setValue(index, record, std::get<StoredValue>(value));
    if (row < rows.targets.size())
        outcome.changes.insert(outcome.changes.end(), made.begin(), made.end());
}

QString RecordImport::inEnglish(const FieldDefinition &field, const QString &text) {
    const bool isListed = field.hasItems() || field.kind == FieldKind::Reference;
    if (mTranslation.gLanguage <= kEnglish || !isListed)
        return text;
    auto known = mTranslated.find(field.index);
    if (known == mTranslated.end()) {
        known = mTranslated.emplace(field.index, QHash<QString, QString>()).first;
        for (const ListItem &item : field.items)
            known->second.insert(mTranslation.NLSStr(item.text), item.text);
        if (field.to.hasNone)
            known->second.insert(mTranslation.NLSStr(ValueCodec::shown(field, 0)), ValueCodec::shown(field, 0));
    }
    const QString trimmed = text.trimmed();
    return known->second.value(trimmed, text);
}
