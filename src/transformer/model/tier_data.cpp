#include "tier_data.h"

#include "field_defaults.h"
#include "run_time_error.h"

#include <algorithm>

namespace {

[[noreturn]] void raise(qint32 number, const QString &what) {
    throw RunTimeError(number, QStringLiteral("TierData"), what);
}

void checkRow(const Dictionary &dictionary, const RecordStructure &structure, const RecordRow &row) {
    const bool fits = row.size() == structure.stored.size() &&
                      std::ranges::equal(row, structure.stored, [&](const StoredValue &value, FieldIndex field) {
                          return value.isText() == dictionary.field(field).isTextual();
                      });
    if (!fits)
        raise(ErrorNumber::kConversion, QStringLiteral("%1: the row does not fit the record").arg(structure.name));
}

} // namespace

TierData::TierData(const Dictionary &dictionary, TierIndex tier)
    : mDictionary(&dictionary), mTier(tier), mVersionLevel(dictionary.newestLevel()) {
    fill();
}

void TierData::fill() {
    for (const RecordStructure &structure : mDictionary->structures()) {
        mTables.emplace_back();
        if (!structure.isScoped())
            mTables.back().push_back(emptyTable(structure.index));
    }
    // The radio first: defaults of the others follow its fields.
    const FieldDefaults defaults(*this);
    insertRow(mDictionary->radio(), {0, 1}, defaults.newRecord(mDictionary->radio(), 0).row);
    for (const RecordStructure &structure : mDictionary->structures()) {
        if (structure.isRadio() || structure.parent.isValid())
            continue;
        for (qint32 number = 1; number <= structure.in(mTier).fresh; ++number)
            insertRecord(structure.index, {0, number}, defaults.newRecord(structure.index, 0));
    }
}

RecordTable TierData::emptyTable(StructureIndex structure) const {
    const std::vector<FieldIndex> &stored = mDictionary->structure(structure).stored;
    const auto texts = qint32(
        std::ranges::count_if(stored, [this](FieldIndex field) { return mDictionary->field(field).isTextual(); }));
    return {qint32(stored.size()) - texts, texts};
}

RecordTable &TierData::table(StructureIndex structure, qint32 parent) {
    return mTables[structure.slot()][parent == 0 ? 0 : std::size_t(parent - 1)];
}

qint32 TierData::recordCount(StructureIndex structure, qint32 parent) const {
    const auto &tables = mTables[structure.slot()];
    const bool scoped = mDictionary->structure(structure).isScoped();
    const bool known = scoped ? parent >= 1 && parent <= qint32(tables.size()) : parent == 0;
    return known ? table(structure, parent).count() : 0;
}

qint32 TierData::totalRecordCount(StructureIndex structure) const {
    qint32 total = 0;
    for (const RecordTable &each : mTables[structure.slot()])
        total += each.count();
    return total;
}

bool TierData::exists(StructureIndex structure, RecordAddress record) const {
    const qint32 count = recordCount(structure, record.parent);
    if (mDictionary->structure(structure).isRadio())
        return record.parent == 0 && (record.number == 0 || record.number == 1);
    return record.number >= 1 && record.number <= count;
}

std::vector<RecordAddress> TierData::records(StructureIndex structure) const {
    if (mDictionary->structure(structure).isRadio())
        return {RecordAddress{}};
    const bool scoped = mDictionary->structure(structure).isScoped();
    std::vector<RecordAddress> result;
    result.reserve(std::size_t(totalRecordCount(structure)));
    qint32 parent = scoped ? 1 : 0;
    for (const RecordTable &each : mTables[structure.slot()]) {
        for (qint32 number = 1; number <= each.count(); ++number)
            result.push_back({parent, number});
        ++parent;
    }
    return result;
}

RecordAddress TierData::recordByTotal(StructureIndex structure, qint32 number) const {
    if (!mDictionary->structure(structure).isScoped())
        return {0, number};
    qint32 parent = 0;
    for (const RecordTable &each : mTables[structure.slot()]) {
        ++parent;
        if (number <= each.count())
            return {parent, number};
        number -= each.count();
    }
    return {parent, number + (parent == 0 ? 0 : table(structure, parent).count())};
}

const FieldDefinition &TierData::checkedField(FieldIndex field, RecordAddress record) const {
    const FieldDefinition &definition = mDictionary->field(field);
    if (!definition.isStored() || !exists(definition.structure, record))
        raise(ErrorNumber::kIndexOutOfRange,
              QStringLiteral("%1(%2.%3) does not exist").arg(definition.id).arg(record.parent).arg(record.number));
    return definition;
}

StoredValue TierData::value(FieldIndex field, RecordAddress record) const {
    const FieldDefinition &definition = checkedField(field, record);
    return table(definition.structure, record.parent).value(definition, rowOf(record));
}

void TierData::setValue(FieldIndex field, RecordAddress record, const StoredValue &value) {
    const FieldDefinition &definition = checkedField(field, record);
    if (value.isText() != definition.isTextual())
        raise(ErrorNumber::kConversion, QStringLiteral("%1: number and text differ").arg(definition.id));
    table(definition.structure, record.parent).setValue(definition, rowOf(record), value);
}

qint32 TierData::identityOf(StructureIndex structure, RecordAddress record) const {
    const FieldIndex identity = mDictionary->structure(structure).identity;
    return identity.isValid() ? number(mDictionary->field(identity), record) : record.number;
}

std::optional<RecordAddress> TierData::recordByIdentity(StructureIndex structure, qint32 identity,
                                                        qint32 parent) const {
    const FieldIndex field = mDictionary->structure(structure).identity;
    const qint32 count = recordCount(structure, parent);
    if (!field.isValid())
        return identity >= 1 && identity <= count ? std::optional(RecordAddress{parent, identity}) : std::nullopt;
    if (count == 0)
        return std::nullopt;
    const std::optional<qint32> found = table(structure, parent).findIdentity(mDictionary->field(field), identity);
    return found ? std::optional(RecordAddress{parent, *found}) : std::nullopt;
}

RecordRow TierData::rowAt(StructureIndex structure, RecordAddress record) const {
    RecordRow row;
    const RecordTable &source = table(structure, record.parent);
    for (const FieldIndex field : mDictionary->structure(structure).stored)
        row.push_back(source.value(mDictionary->field(field), rowOf(record)));
    return row;
}

RecordImage TierData::recordImage(StructureIndex structure, RecordAddress record) const {
    const RecordStructure &definition = mDictionary->structure(structure);
    if (!exists(structure, record))
        raise(ErrorNumber::kIndexOutOfRange, QStringLiteral("%1: no such record").arg(definition.name));
    RecordImage image{rowAt(structure, record), {}};
    for (const StructureIndex child : definition.children) {
        const RecordStructure &childDefinition = mDictionary->structure(child);
        std::vector<RecordRow> rows;
        const qint32 first = childDefinition.isFlat() ? (record.number - 1) * childDefinition.perParent + 1 : 1;
        const qint32 count = childDefinition.isFlat() ? childDefinition.perParent : recordCount(child, record.number);
        for (qint32 number = first; number < first + count; ++number)
            rows.push_back(rowAt(child, {childDefinition.isFlat() ? 0 : record.number, number}));
        image.children.push_back(std::move(rows));
    }
    return image;
}

void TierData::insertRow(StructureIndex structure, RecordAddress record, const RecordRow &row) {
    checkRow(*mDictionary, mDictionary->structure(structure), row);
    table(structure, record.parent).insert(record.number, *mDictionary, mDictionary->structure(structure), row);
}

void TierData::insertRecord(StructureIndex structure, RecordAddress record, const RecordImage &image) {
    const RecordStructure &definition = mDictionary->structure(structure);
    const bool parentExists = !definition.isScoped() || exists(definition.parent, {0, record.parent});
    if (!parentExists || record.number < 1 || record.number > recordCount(structure, record.parent) + 1)
        raise(ErrorNumber::kIndexOutOfRange, QStringLiteral("%1: no place for a record").arg(definition.name));
    if (image.children.size() != definition.children.size())
        raise(ErrorNumber::kConversion, QStringLiteral("%1: the image does not fit").arg(definition.name));
    insertRow(structure, record, image.row);
    insertChildren(definition, record.number, image);
}

void TierData::insertChildren(const RecordStructure &structure, qint32 number, const RecordImage &image) {
    for (std::size_t i = 0; i < structure.children.size(); ++i) {
        const RecordStructure &child = mDictionary->structure(structure.children[i]);
        qint32 next = child.isFlat() ? (number - 1) * child.perParent + 1 : 1;
        if (child.isScoped()) {
            auto &tables = mTables[child.index.slot()];
            tables.insert(tables.begin() + (number - 1), emptyTable(child.index));
        }
        for (const RecordRow &row : image.children[i])
            insertRow(child.index, {child.isFlat() ? 0 : number, next++}, row);
    }
}

void TierData::removeRecord(StructureIndex structure, RecordAddress record) {
    const RecordStructure &definition = mDictionary->structure(structure);
    if (definition.isRadio() || !exists(structure, record))
        raise(ErrorNumber::kIndexOutOfRange, QStringLiteral("%1: no such record").arg(definition.name));
    table(structure, record.parent).remove(record.number);
    removeChildren(definition, record.number);
}

void TierData::removeChildren(const RecordStructure &structure, qint32 number) {
    for (const StructureIndex index : structure.children) {
        const RecordStructure &child = mDictionary->structure(index);
        if (child.isScoped()) {
            mTables[index.slot()].erase(mTables[index.slot()].begin() + (number - 1));
            continue;
        }
        for (qint32 i = 0; i < child.perParent; ++i)
            table(index, 0).remove((number - 1) * child.perParent + 1);
    }
}

void TierData::moveRecord(StructureIndex structure, qint32 parent, qint32 from, qint32 to) {
    const RecordStructure &definition = mDictionary->structure(structure);
    if (definition.isRadio() || !exists(structure, {parent, from}) || !exists(structure, {parent, to}))
        raise(ErrorNumber::kIndexOutOfRange, QStringLiteral("%1: no such record").arg(definition.name));
    table(structure, parent).move(from, to);
    moveChildren(definition, from, to);
}

void TierData::moveChildren(const RecordStructure &structure, qint32 from, qint32 to) {
    for (const StructureIndex index : structure.children) {
        const RecordStructure &child = mDictionary->structure(index);
        if (child.isScoped()) {
            const auto begin = mTables[index.slot()].begin();
            if (from < to)
                std::rotate(begin + from - 1, begin + from, begin + to);
            else
                std::rotate(begin + to - 1, begin + from - 1, begin + from);
            continue;
        }
        // Downwards each row taken from the front of the block goes behind the last; upwards likewise from the end.
        const qint32 each = child.perParent;
        for (qint32 i = 0; i < each; ++i) {
            if (from < to)
                table(index, 0).move((from - 1) * each + 1, to * each);
            else
                table(index, 0).move(from * each, (to - 1) * each + 1);
        }
    }
}

namespace {

struct Applier {
    TierData &data;
    void operator()(const ValueStep &step) const { data.setValue(step.field, step.record, step.after); }
    void operator()(const InsertStep &step) const { data.insertRecord(step.structure, step.record, step.image); }
    void operator()(const RemoveStep &step) const { data.removeRecord(step.structure, step.record); }
    void operator()(const MoveStep &step) const { data.moveRecord(step.structure, step.parent, step.from, step.to); }
};

} // namespace

void TierData::apply(const Change &change) { std::visit(Applier{*this}, change); }

void TierData::apply(const Changes &changes) {
    for (const Change &change : changes)
        apply(change);
}

bool TierData::sameValues(const TierData &other) const { return mTier == other.mTier && mTables == other.mTables; }
