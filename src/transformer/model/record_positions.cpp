#include "record_positions.h"

#include <algorithm>

namespace {

// Where the record at a position stands after a step on its structure.
qint32 followed(qint32 position, const Change &change) {
    if (const auto *insert = std::get_if<InsertStep>(&change))
        return position >= insert->record.number ? position + 1 : position;
    if (const auto *remove = std::get_if<RemoveStep>(&change))
        return position > remove->record.number ? position - 1 : position;
    const auto *move = std::get_if<MoveStep>(&change);
    if (move == nullptr)
        return position;
    if (position == move->from)
        return move->to;
    if (position > move->from && position <= move->to)
        return position - 1;
    return position >= move->to && position < move->from ? position + 1 : position;
}

StructureIndex structureOf(const Change &change) {
    return std::visit(
        [](const auto &step) {
            if constexpr (requires { step.structure; })
                return step.structure;
            else
                return StructureIndex();
        },
        change);
}

} // namespace

RecordPositions::RecordPositions(const TierData &data) { reset(data); }

void RecordPositions::reset(const TierData &data) {
    mPositions.assign(data.dictionary().structures().size(), 1);
    clamp(data);
}

void RecordPositions::clamp(const TierData &data) {
    for (const RecordStructure &structure : data.dictionary().structures()) {
        qint32 &position = mPositions[structure.index.slot()];
        const qint32 count = structure.position.isEmpty() ? 0 : data.recordCount(structure.index);
        position = std::clamp(position, std::min(count, 1), count);
    }
}

bool RecordPositions::setPosition(const TierData &data, StructureIndex structure, qint32 position) {
    const bool known = !data.dictionary().structure(structure).position.isEmpty();
    if (!known || position < 1 || position > data.recordCount(structure))
        return false;
    mPositions[structure.slot()] = position;
    return true;
}

void RecordPositions::follow(const TierData &data, const Changes &changes) {
    const Dictionary &dictionary = data.dictionary();
    for (const Change &change : changes) {
        const StructureIndex index = structureOf(change);
        if (!index.isValid() || dictionary.structure(index).isScoped())
            continue;
        qint32 &own = mPositions[index.slot()];
        own = followed(own, change);
        for (const StructureIndex child : dictionary.structure(index).children) {
            const qint32 each = dictionary.structure(child).perParent;
            qint32 &position = mPositions[child.slot()];
            if (each > 0 && position > 0)
                position = (followed((position - 1) / each + 1, change) - 1) * each + (position - 1) % each + 1;
        }
    }
    clamp(data);
}

RecordAddress RecordPositions::address(const Dictionary &dictionary, StructureIndex index, qint32 number) const {
    const RecordStructure &structure = dictionary.structure(index);
    if (structure.isRadio())
        return {0, number == 1 ? 0 : number};
    return {structure.isScoped() ? position(structure.parent) : 0, number};
}
