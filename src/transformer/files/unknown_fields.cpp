#include "unknown_fields.h"

QJsonObject UnknownFields::ofTier(TierIndex tier) const {
    const auto found = mTiers.find(tier);
    return found == mTiers.end() ? QJsonObject() : found->second;
}

void UnknownFields::setTier(TierIndex tier, const QJsonObject &fields) {
    if (!fields.isEmpty())
        mTiers[tier] = fields;
}

QJsonObject UnknownFields::ofRecord(TierIndex tier, StructureIndex structure, RecordAddress record) const {
    if (mRecords.empty())
        return {};
    const auto found = mRecords.find({tier, structure, record});
    return found == mRecords.end() ? QJsonObject() : found->second;
}

void UnknownFields::setRecord(TierIndex tier, StructureIndex structure, RecordAddress record,
                              const QJsonObject &fields) {
    if (!fields.isEmpty())
        mRecords[{tier, structure, record}] = fields;
}

void UnknownFields::forgetTier(TierIndex tier) {
    mTiers.erase(tier);
    std::erase_if(mRecords, [tier](const auto &entry) { return std::get<TierIndex>(entry.first) == tier; });
}

// newNumber answers a record's number afterwards, 0 for a record that goes.
template <class Renumber>
void UnknownFields::renumber(TierIndex tier, StructureIndex structure, qint32 parent, const Renumber &newNumber) {
    std::map<Place, QJsonObject> records;
    for (auto &[place, fields] : mRecords) {
        auto [ofTier, ofStructure, address] = place;
        if (ofTier == tier && ofStructure == structure && address.parent == parent)
            address.number = newNumber(address.number);
        if (address.number > 0 || ofStructure != structure)
            records[{ofTier, ofStructure, address}] = std::move(fields);
    }
    mRecords = std::move(records);
}

void UnknownFields::follow(TierIndex tier, const Changes &changes) {
    if (mRecords.empty())
        return;
    for (const Change &change : changes) {
        if (const auto *insert = std::get_if<InsertStep>(&change)) {
            renumber(tier, insert->structure, insert->record.parent,
                     [at = insert->record.number](qint32 number) { return number >= at ? number + 1 : number; });
        } else if (const auto *remove = std::get_if<RemoveStep>(&change)) {
            renumber(tier, remove->structure, remove->record.parent, [at = remove->record.number](qint32 number) {
                return number == at ? 0 : number > at ? number - 1 : number;
            });
        } else if (const auto *move = std::get_if<MoveStep>(&change)) {
            renumber(tier, move->structure, move->parent, [from = move->from, to = move->to](qint32 number) {
                if (number == from)
                    return to;
                const qint32 closed = number > from ? number - 1 : number;
                return closed >= to ? closed + 1 : closed;
            });
        }
    }
}
