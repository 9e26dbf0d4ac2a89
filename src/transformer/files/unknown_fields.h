#pragma once

#include "change.h"

#include <QJsonObject>
#include <QString>

#include <map>
#include <tuple>

// What a data file holds beyond the fields that we know. It is kept beside the values and written back where it stood.
class UnknownFields {
  public:
    QJsonObject header;
    QJsonObject top;
    QJsonObject tiers; // whole tiers that we do not have, by key

    [[nodiscard]] QJsonObject ofTier(TierIndex tier) const;
    void setTier(TierIndex tier, const QJsonObject &fields);
    [[nodiscard]] QJsonObject ofRecord(TierIndex tier, StructureIndex structure, RecordAddress record) const;
    void setRecord(TierIndex tier, StructureIndex structure, RecordAddress record, const QJsonObject &fields);
    // The tier's values have been replaced: nothing unknown belongs to them any more.
    void forgetTier(TierIndex tier);
    // Records that were inserted, removed or moved take theirs along. Children of a removed record lose theirs.
    void follow(TierIndex tier, const Changes &changes);

  private:
    using Place = std::tuple<TierIndex, StructureIndex, RecordAddress>;
    template <class Renumber>
    void renumber(TierIndex tier, StructureIndex structure, qint32 parent, const Renumber &newNumber);

    std::map<TierIndex, QJsonObject> mTiers;
    std::map<Place, QJsonObject> mRecords;
};
