#include "rule_evaluator.h"

#include "named_functions.h"

#include <algorithm>

namespace {

bool passes(const Rule &rule, const StoredValue &value) {
    const auto listed = [&] {
        return value.isText() ? rule.texts.contains(value.text())
                              : std::ranges::find(rule.values, value.number()) != rule.values.end();
    };
    switch (rule.test) {
    case Rule::Test::Is:
        return listed();
    case Rule::Test::IsNot:
        return !listed();
    case Rule::Test::Above:
        return value.number() > rule.bound;
    case Rule::Test::Below:
        return value.number() < rule.bound;
    case Rule::Test::Empty:
        return value.text().isEmpty();
    case Rule::Test::NotEmpty:
        return !value.text().isEmpty();
    case Rule::Test::Contains:
        break;
    }
    const QString text = value.text();
    return std::ranges::any_of(rule.texts, [&text](const QString &part) { return text.contains(part); });
}

} // namespace

bool RuleEvaluator::holds(const Rule &rule, StructureIndex structure, RecordAddress record) const {
    const auto innerHolds = [&](const Rule &inner) { return holds(inner, structure, record); };
    switch (rule.kind) {
    case Rule::Kind::Always:
        return true;
    case Rule::Kind::All:
        return std::ranges::all_of(rule.inner, innerHolds);
    case Rule::Kind::Any:
        return std::ranges::any_of(rule.inner, innerHolds);
    case Rule::Kind::Not:
        return !innerHolds(rule.inner.front());
    case Rule::Kind::Compare:
        return compares(rule, structure, record);
    case Rule::Kind::Records:
        return counts(rule, structure, record);
    case Rule::Kind::Some:
        return someRecord(rule);
    case Rule::Kind::Function:
        break;
    }
    return NamedFunctions::check(rule.function, mReader, record);
}

bool RuleEvaluator::compares(const Rule &rule, StructureIndex structure, RecordAddress record) const {
    const Dictionary &dictionary = mReader.dictionary();
    const StructureIndex start = dictionary.field(rule.via.isValid() ? rule.via : rule.field).structure;
    std::optional<RecordAddress> source = mReader.related(structure, record, start);
    if (source && rule.via.isValid()) {
        const auto target = mReader.target(rule.via, *source);
        const bool fits = target && target->structure == dictionary.field(rule.field).structure;
        source = fits ? std::optional(target->record) : std::nullopt;
    }
    const std::optional<StoredValue> value = source ? mReader.value(rule.field, *source) : std::nullopt;
    return value && passes(rule, *value);
}

bool RuleEvaluator::counts(const Rule &rule, StructureIndex structure, RecordAddress record) const {
    const RecordStructure &counted = mReader.dictionary().structure(rule.structure);
    const qint32 parent = counted.isScoped() && counted.parent == structure ? record.number : 0;
    const qint32 count = mReader.data().recordCount(rule.structure, parent);
    return rule.test == Rule::Test::Above ? count > rule.bound : count < rule.bound;
}

bool RuleEvaluator::someRecord(const Rule &rule) const {
    const std::vector<RecordAddress> records = mReader.data().records(rule.structure);
    return std::ranges::any_of(records,
                               [&](RecordAddress record) { return holds(rule.inner.front(), rule.structure, record); });
}

bool RuleEvaluator::hasField(FieldIndex field) const {
    return mReader.dictionary().field(field).levelIn(mReader.data().tier()) <= mReader.data().versionLevel();
}

bool RuleEvaluator::hasItem(const ListItem &item) const {
    return item.tiers.contains(mReader.data().tier()) && item.level <= mReader.data().versionLevel();
}

bool RuleEvaluator::isEnabled(FieldIndex index, RecordAddress record, qint32 accessLevel) const {
    const FieldDefinition &field = mReader.dictionary().field(index);
    return !field.readOnly && accessLevel >= field.access && hasField(index) &&
           mReader.data().exists(field.structure, record) && holds(field.enabledWhen, field.structure, record);
}
