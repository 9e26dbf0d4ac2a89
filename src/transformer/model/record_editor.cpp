#include "record_editor.h"

#include "field_defaults.h"
#include "run_time_error.h"

#include <QHash>

#include <algorithm>
#include <numeric>

namespace {

// Where a record lands when the one at `from` moves to `to`.
qint32 moved(qint32 number, qint32 from, qint32 to) {
    if (number == from)
        return to;
    if (from < to)
        return number > from && number <= to ? number - 1 : number;
    return number >= to && number < from ? number + 1 : number;
}

// The same for the records of a flat table whose parents are renumbered.
std::function<qint32(qint32)> ofFlat(std::function<qint32(qint32)> parents, qint32 each) {
    return [parents = std::move(parents), each](qint32 number) {
        const qint32 parent = parents((number - 1) / each + 1);
        return parent == 0 ? 0 : (parent - 1) * each + (number - 1) % each + 1;
    };
}

RecordResult refused(RecordRefusal refusal) { return {{}, {}, refusal}; }

} // namespace

void RecordEditor::make(Changes &changes, Change change) {
    mData.apply(change);
    changes.push_back(std::move(change));
}

void RecordEditor::set(Changes &changes, FieldIndex field, RecordAddress record, const StoredValue &value) {
    const StoredValue before = mData.value(field, record);
    if (before != value)
        make(changes, ValueStep{field, record, before, value});
}

Changes RecordEditor::setValue(FieldIndex field, RecordAddress record, const StoredValue &value) {
    Changes changes;
    const FieldDefinition &definition = mData.dictionary().field(field);
    const StoredValue before = mData.value(field, record);
    if (before == value)
        return changes;
    set(changes, field, record, value);
    if (definition.kind == FieldKind::Identity && record.parent == 0) {
        followIdentity(changes, definition.structure,
                       [&](qint32 identity) { return identity == before.number() ? value.number() : identity; });
    }
    setDependents(changes, field, record, before);
    return changes;
}

void RecordEditor::setDependents(Changes &changes, FieldIndex field, RecordAddress record, const StoredValue &before) {
    const Dictionary &dictionary = mData.dictionary();
    const DependencyIndex &dependencies = dictionary.dependencies();
    const FieldDefaults defaults(mData);
    const auto setFurther = [&](FieldIndex dependent, RecordAddress place, const StoredValue &value) {
        const StoredValue old = mData.value(dependent, place);
        if (old == value)
            return;
        set(changes, dependent, place, value);
        setDependents(changes, dependent, place, old);
    };
    for (const FieldIndex dependent : dependencies.resets(field))
        setFurther(dependent, record, defaults.defaultFor(dependent, record));
    for (const FieldIndex index : dependencies.followers(field)) {
        const FieldDefinition &follower = dictionary.field(index);
        const RecordAddress place =
            follower.followsInRow == 0 ? record : RecordAddress{record.number, follower.followsInRow};
        if (mData.exists(follower.structure, place) && mData.value(index, place) == before)
            setFurther(index, place, mData.value(field, record));
    }
}

Changes RecordEditor::renumber(StructureIndex index, const std::vector<std::pair<RecordAddress, qint32>> &identities) {
    Changes changes;
    const FieldIndex identity = mData.dictionary().structure(index).identity;
    QHash<qint32, qint32> renumbered;
    for (const auto &[record, number] : identities) {
        renumbered.insert(mData.identityOf(index, record), number);
        set(changes, identity, record, number);
    }
    if (!changes.empty())
        followIdentity(changes, index, [&](qint32 old) { return renumbered.value(old, old); });
    return changes;
}

// Renumber maps the identities that references to the structure hold.
void RecordEditor::followIdentity(Changes &changes, StructureIndex structure, const Renumber &renumber) {
    for (const FieldIndex index : mData.dictionary().dependencies().references(structure)) {
        const FieldDefinition &field = mData.dictionary().field(index);
        for (const RecordAddress record : mData.records(field.structure)) {
            const qint32 stored = mData.number(field, record);
            if (field.to.structureOf(stored) != structure)
                continue;
            const qint32 identity = renumber(field.to.identityOf(stored));
            set(changes, index, record, identity == 0 ? 0 : field.to.stored(structure, identity));
        }
    }
}

// After records have got other numbers: references by number follow, those to flat children too.
void RecordEditor::followNumbers(Changes &changes, const RecordStructure &structure, const Renumber &renumber) {
    if (structure.isScoped())
        return;
    if (!structure.identity.isValid())
        followIdentity(changes, structure.index, renumber);
    for (const StructureIndex index : structure.children) {
        const RecordStructure &child = mData.dictionary().structure(index);
        if (child.isFlat() && !child.identity.isValid())
            followIdentity(changes, index, ofFlat(renumber, child.perParent));
    }
}

std::optional<RecordRefusal> RecordEditor::mayInsert(const RecordStructure &structure, RecordAddress record) const {
    using Reason = RecordRefusal::Reason;
    const qint32 count = mData.recordCount(structure.index, record.parent);
    const qint32 most = structure.in(mData.tier()).most;
    const bool parentExists = !structure.isScoped() || mData.exists(structure.parent, {0, record.parent});
    if (structure.fixed || structure.isFlat())
        return RecordRefusal{Reason::FixedRows, structure.index, most, {}, {}};
    if (!parentExists || record.number < 1 || record.number > count + 1)
        return RecordRefusal{Reason::NoSuchRecord, structure.index, 0, {}, {}};
    if (count >= most)
        return RecordRefusal{Reason::Full, structure.index, most, {}, {}};
    if (structure.identity.isValid()) {
        const qint32 least = mData.dictionary().field(structure.identity).limits.minimum;
        if (!FieldDefaults(mData).nextFreeIdentity(structure.index, record.parent, least))
            return RecordRefusal{Reason::NoFreeNumber, structure.index, 0, {}, {}};
    }
    return std::nullopt;
}

RecordResult RecordEditor::insertImage(const RecordStructure &structure, RecordAddress record, RecordImage image) {
    RecordResult result;
    result.record = record;
    make(result.changes, InsertStep{structure.index, record, std::move(image)});
    followNumbers(result.changes, structure,
                  [number = record.number](qint32 old) { return old >= number ? old + 1 : old; });
    return result;
}

RecordResult RecordEditor::insertRecord(StructureIndex index, RecordAddress record) {
    const RecordStructure &structure = mData.dictionary().structure(index);
    if (auto refusal = mayInsert(structure, record))
        return refused(*refusal);
    return insertImage(structure, record, FieldDefaults(mData).newRecord(index, record.parent));
}

RecordResult RecordEditor::appendRecords(StructureIndex index, qint32 parent, const std::vector<qint32> &identities) {
    const RecordStructure &structure = mData.dictionary().structure(index);
    RecordAddress record{parent, mData.recordCount(index, parent) + 1};
    RecordResult result;
    result.record = record;
    if (identities.empty())
        return result;
    const qint32 most = structure.in(mData.tier()).most;
    if (auto refusal = mayInsert(structure, record))
        return refused(*refusal);
    if (record.number - 1 + qint32(identities.size()) > most)
        return refused({RecordRefusal::Reason::Full, index, most, {}, {}});
    RecordImage image = FieldDefaults(mData).newRecord(index, parent);
    const auto place = std::ranges::find(structure.stored, structure.identity) - structure.stored.begin();
    for (const qint32 identity : identities) {
        if (structure.identity.isValid())
            image.row[std::size_t(place)] = identity;
        make(result.changes, InsertStep{index, record, image});
        ++record.number;
    }
    return result;
}

RecordResult RecordEditor::copyRecord(StructureIndex index, RecordAddress record) {
    const RecordStructure &structure = mData.dictionary().structure(index);
    const RecordAddress place{record.parent, record.number + 1};
    if (!mData.exists(index, record))
        return refused({RecordRefusal::Reason::NoSuchRecord, index, 0, {}, {}});
    if (auto refusal = mayInsert(structure, place))
        return refused(*refusal);
    RecordImage image = mData.recordImage(index, record);
    for (std::size_t i = 0; i < image.row.size(); ++i) {
        if (structure.stored[i] == structure.identity)
            image.row[i] = FieldDefaults(mData).defaultOf(structure.identity, record.parent);
    }
    return insertImage(structure, place, std::move(image));
}

// The first reference that would refuse the deletion.
std::optional<RecordRefusal> RecordEditor::useOf(const RecordStructure &structure, RecordAddress record) const {
    const Dictionary &dictionary = mData.dictionary();
    const qint32 identity = mData.identityOf(structure.index, record);
    for (const FieldIndex index : dictionary.dependencies().references(structure.index)) {
        const FieldDefinition &field = dictionary.field(index);
        if (field.to.whenGone != TargetGone::Refuse || structure.isScoped())
            continue;
        for (const RecordAddress user : mData.records(field.structure)) {
            const qint32 stored = mData.number(field, user);
            const bool itself = field.structure == structure.index && user == record;
            if (!itself && field.to.structureOf(stored) == structure.index && field.to.identityOf(stored) == identity)
                return RecordRefusal{RecordRefusal::Reason::InUse, structure.index, 0, index, user};
        }
    }
    return std::nullopt;
}

std::optional<RecordRefusal> RecordEditor::mayDelete(const RecordStructure &structure, RecordAddress record) const {
    using Reason = RecordRefusal::Reason;
    const qint32 least = structure.in(mData.tier()).least;
    if (!mData.exists(structure.index, record))
        return RecordRefusal{Reason::NoSuchRecord, structure.index, 0, {}, {}};
    if (structure.fixed || structure.isFlat())
        return RecordRefusal{Reason::FixedRows, structure.index, least, {}, {}};
    if (mData.recordCount(structure.index, record.parent) <= least)
        return RecordRefusal{Reason::AtLeast, structure.index, least, {}, {}};
    return useOf(structure, record);
}

// References to the record become None, or their records go too.
void RecordEditor::releaseTarget(Changes &changes, const RecordStructure &structure, RecordAddress record) {
    const Dictionary &dictionary = mData.dictionary();
    if (structure.isScoped())
        return;
    const qint32 identity = mData.identityOf(structure.index, record);
    for (const FieldIndex index : dictionary.dependencies().references(structure.index)) {
        const FieldDefinition &field = dictionary.field(index);
        std::vector<RecordAddress> users = mData.records(field.structure);
        std::ranges::reverse(users); // from the end, so that the numbers of the others stay
        for (const RecordAddress user : users) {
            const qint32 stored = mData.number(field, user);
            if (field.to.structureOf(stored) != structure.index || field.to.identityOf(stored) != identity)
                continue;
            if (field.to.whenGone == TargetGone::DeleteRecord && field.structure != structure.index)
                removeWhole(changes, dictionary.structure(field.structure), user);
            else
                set(changes, index, user, 0);
        }
    }
}

void RecordEditor::removeWhole(Changes &changes, const RecordStructure &structure, RecordAddress record) {
    releaseTarget(changes, structure, record);
    make(changes, RemoveStep{structure.index, record, mData.recordImage(structure.index, record)});
    followNumbers(changes, structure, [number = record.number](qint32 old) {
        if (old == number)
            return 0;
        return old > number ? old - 1 : old;
    });
}

RecordResult RecordEditor::deleteRecord(StructureIndex index, RecordAddress record) {
    const RecordStructure &structure = mData.dictionary().structure(index);
    if (auto refusal = mayDelete(structure, record))
        return refused(*refusal);
    RecordResult result;
    removeWhole(result.changes, structure, record);
    return result;
}

RecordResult RecordEditor::moveRecord(StructureIndex index, qint32 parent, qint32 from, qint32 to) {
    const RecordStructure &structure = mData.dictionary().structure(index);
    if (structure.isRadio() || !mData.exists(index, {parent, from}) || !mData.exists(index, {parent, to}))
        return refused({RecordRefusal::Reason::NoSuchRecord, index, 0, {}, {}});
    RecordResult result;
    result.record = {parent, to};
    if (from == to)
        return result;
    make(result.changes, MoveStep{index, parent, from, to});
    followNumbers(result.changes, structure, [from, to](qint32 old) { return moved(old, from, to); });
    return result;
}

RecordResult RecordEditor::reorder(StructureIndex index, qint32 parent, const std::vector<qint32> &order) {
    const RecordStructure &structure = mData.dictionary().structure(index);
    std::vector<qint32> present(std::size_t(mData.recordCount(index, parent)));
    std::iota(present.begin(), present.end(), 1);
    if (!std::ranges::is_permutation(order, present))
        throw RunTimeError(ErrorNumber::kBadArgument, QStringLiteral("RecordEditor"),
                           QStringLiteral("%1: the order is no permutation").arg(structure.name));
    RecordResult result;
    for (std::size_t place = 0; place < order.size(); ++place) {
        const auto found = std::find(present.begin() + std::ptrdiff_t(place), present.end(), order[place]);
        const auto from = qint32(found - present.begin()) + 1;
        const auto to = qint32(place) + 1;
        if (from == to)
            continue;
        std::rotate(present.begin() + std::ptrdiff_t(place), found, found + 1);
        make(result.changes, MoveStep{index, parent, from, to});
    }
    // The references follow once, when every record has its place.
    std::vector<qint32> places(order.size());
    for (std::size_t place = 0; place < order.size(); ++place)
        places[std::size_t(order[place] - 1)] = qint32(place) + 1;
    followNumbers(result.changes, structure, [&places](qint32 old) {
        return old >= 1 && old <= qint32(places.size()) ? places[std::size_t(old - 1)] : old;
    });
    return result;
}
