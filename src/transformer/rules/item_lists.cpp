#include "item_lists.h"

#include "field_defaults.h"
#include "named_functions.h"
#include "rule_evaluator.h"
#include "value_codec.h"

#include <algorithm>

std::vector<FieldItem> ItemLists::items(FieldIndex index, RecordAddress record) const {
    const FieldDefinition &field = mReader.dictionary().field(index);
    // The same in every record: a field has its list before it shows any.
    const bool anyRecord = field.hasItems() && field.scope.isEmpty();
    if (!anyRecord && !mReader.data().exists(field.structure, record))
        return {};
    if (field.hasItems())
        return fixedItems(field, record);
    if (field.kind == FieldKind::Reference)
        return targets(field, record);
    return field.kind == FieldKind::Identity ? identities(field, record) : std::vector<FieldItem>();
}

std::vector<FieldItem> ItemLists::fixedItems(const FieldDefinition &field, RecordAddress record) const {
    const RuleEvaluator evaluator(mReader.data());
    std::vector<FieldItem> result;
    for (const ListItem &item : field.items) {
        if (evaluator.hasItem(item) &&
            NamedFunctions::inScope(field.scope, mReader, field, record, {item.value, {}, {}}))
            result.push_back({item.text, item.value});
    }
    return result;
}

std::vector<FieldItem> ItemLists::targets(const FieldDefinition &field, RecordAddress record) const {
    std::vector<FieldItem> result;
    if (field.to.hasNone)
        result.push_back({ValueCodec::shown(field, 0), 0});
    const TierData &data = mReader.data();
    for (const StructureIndex structure : field.to.structures) {
        const bool scoped = mReader.dictionary().structure(structure).isScoped();
        const qint32 parent = scoped ? NamedFunctions::scopeParent(field.scope, mReader, record) : 0;
        const qint32 count = data.recordCount(structure, parent);
        for (qint32 number = 1; number <= count; ++number) {
            const RecordAddress target{parent, number};
            const qint32 stored = field.to.stored(structure, data.identityOf(structure, target));
            if (NamedFunctions::inScope(field.scope, mReader, field, record, {stored, structure, target}))
                result.push_back({ValueCodec::shown(field, stored), stored});
        }
    }
    return result;
}

std::vector<FieldItem> ItemLists::identities(const FieldDefinition &field, RecordAddress record) const {
    const FieldDefaults defaults(mReader.data());
    const qint32 own = mReader.data().number(field, record);
    std::vector<qint32> numbers{own};
    qint32 from = field.limits.minimum;
    for (qint32 offered = 0; offered < field.offer; ++offered) {
        const auto next = defaults.nextFreeIdentity(field.structure, record.parent, from);
        if (!next)
            break;
        numbers.push_back(*next);
        from = *next + 1;
    }
    std::ranges::sort(numbers);
    std::vector<FieldItem> result;
    result.reserve(numbers.size());
    for (const qint32 number : numbers)
        result.push_back({QString::number(number), number});
    return result;
}

bool ItemLists::differsByRecord(FieldIndex index) const {
    const FieldDefinition &field = mReader.dictionary().field(index);
    return !field.scope.isEmpty() || field.kind == FieldKind::Identity;
}

bool ItemLists::contains(FieldIndex index, RecordAddress record, qint32 value) const {
    const FieldDefinition &field = mReader.dictionary().field(index);
    const TierData &data = mReader.data();
    if (!data.exists(field.structure, record))
        return false;
    if (field.hasItems()) {
        const ListItem *item = field.itemByValue(value);
        return item != nullptr && RuleEvaluator(data).hasItem(*item) &&
               NamedFunctions::inScope(field.scope, mReader, field, record, {value, {}, {}});
    }
    if (field.kind == FieldKind::Identity) {
        const auto holder = data.recordByIdentity(field.structure, value, record.parent);
        return value >= field.limits.minimum && value <= field.limits.maximum && (!holder || *holder == record);
    }
    if (value == 0)
        return field.to.hasNone;
    const StructureIndex structure = field.to.structureOf(value);
    if (!structure.isValid())
        return false;
    const RecordStructure &target = mReader.dictionary().structure(structure);
    const qint32 parent = target.isScoped() ? NamedFunctions::scopeParent(field.scope, mReader, record) : 0;
    // Rows of a system that is not chosen yet: any that a system will have.
    if (target.isScoped() && parent == 0)
        return field.to.identityOf(value) <= target.in(data.tier()).most;
    const auto found = data.recordByIdentity(structure, field.to.identityOf(value), parent);
    return found && NamedFunctions::inScope(field.scope, mReader, field, record, {value, structure, *found});
}
