#include "value_validator.h"

#include "item_lists.h"
#include "value_text.h"

#include <algorithm>

namespace {

ValueFault::Kind notListedKind(FieldKind kind) {
    if (kind == FieldKind::Reference)
        return ValueFault::Kind::NoSuchRecord;
    return kind == FieldKind::Identity ? ValueFault::Kind::AlreadyUsed : ValueFault::Kind::NotInList;
}

} // namespace

std::optional<ValueFault> ValueValidator::check(FieldIndex index, RecordAddress record,
                                                const StoredValue &value) const {
    const FieldDefinition &field = mReader.dictionary().field(index);
    const NumberLimits limits = mReader.limits(index, record);
    const ValueResult stored = ValueCodec::checkStored(field, value, limits);
    if (const auto *fault = std::get_if<ValueFault>(&stored))
        return *fault;
    const bool listed = field.hasItems() || field.kind == FieldKind::Reference || field.kind == FieldKind::Identity;
    if (listed && !ItemLists(mReader.data()).contains(index, record, value.number()))
        return ValueFault{notListedKind(field.kind), limits, field.length, ValueCodec::shown(field, value)};
    return std::nullopt;
}

ValueResult ValueValidator::inRecord(FieldIndex field, RecordAddress record, ValueResult parsed) const {
    const auto *value = std::get_if<StoredValue>(&parsed);
    if (value == nullptr)
        return parsed;
    if (auto fault = check(field, record, *value))
        return *fault;
    return parsed;
}

// A text that stands for several items, or only in this record's list, is looked for among the record's items first.
std::optional<ValueResult> ValueValidator::byRecordItem(FieldIndex index, RecordAddress record,
                                                        const QString &text) const {
    const FieldDefinition &field = mReader.dictionary().field(index);
    if (!field.hasItems() || field.scope.isEmpty())
        return std::nullopt;
    const std::vector<FieldItem> items = ItemLists(mReader.data()).items(index, record);
    const auto found = std::ranges::find(items, text.trimmed(), &FieldItem::text);
    return found == items.end() ? std::nullopt : std::optional<ValueResult>(StoredValue(found->value));
}

ValueResult ValueValidator::fromBoundary(FieldIndex index, RecordAddress record, const QVariant &value) const {
    const FieldDefinition &field = mReader.dictionary().field(index);
    if (field.kind == FieldKind::Choice) {
        if (auto item = byRecordItem(index, record, ValueText::of(value)))
            return *item;
    }
    return inRecord(index, record, ValueCodec::parseBoundary(field, value, mReader.limits(index, record)));
}

ValueResult ValueValidator::fromShown(FieldIndex index, RecordAddress record, const QString &text) const {
    if (auto item = byRecordItem(index, record, text))
        return *item;
    const FieldDefinition &field = mReader.dictionary().field(index);
    return inRecord(index, record, ValueCodec::parseShown(field, text, mReader.limits(index, record)));
}

ValueResult ValueValidator::fromRaw(FieldIndex index, RecordAddress record, const QString &text) const {
    const FieldDefinition &field = mReader.dictionary().field(index);
    return inRecord(index, record, ValueCodec::parseRaw(field, text, mReader.limits(index, record)));
}
