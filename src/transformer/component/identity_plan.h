#pragma once

#include "tier_data.h"

#include <QSet>

#include <optional>
#include <vector>

// New identities of many records of one table at once. Records that give theirs up make them free for the others, so
// that two may exchange theirs.
class IdentityPlan {
  public:
    struct Wish {
        qint32 record = 0;              // 0: a record that is still to be made
        std::optional<qint32> identity; // in range; nullopt: none
    };
    IdentityPlan(const TierData &data, StructureIndex structure, qint32 parent);

    // Takes back the wishes that collide, the later one of two; answers their places, ascending.
    [[nodiscard]] std::vector<std::size_t> settle(std::vector<Wish> &wishes);
    // After settle: the lowest identity that neither a record nor a wish has; nullopt when none is left.
    [[nodiscard]] std::optional<qint32> nextFree();

  private:
    [[nodiscard]] QSet<qint32> keptBy(const std::vector<Wish> &wishes) const;

    const TierData &mData;
    StructureIndex mStructure;
    qint32 mParent;
    NumberLimits mLimits;
    QSet<qint32> mTaken;
    qint32 mNext;
};
