#include "identity_plan.h"

#include <algorithm>

IdentityPlan::IdentityPlan(const TierData &data, StructureIndex structure, qint32 parent)
    : mData(data), mStructure(structure), mParent(parent),
      mLimits(data.dictionary().field(data.dictionary().structure(structure).identity).limits), mNext(mLimits.minimum) {
}

QSet<qint32> IdentityPlan::keptBy(const std::vector<Wish> &wishes) const {
    std::vector<bool> changes(std::size_t(mData.recordCount(mStructure, mParent)) + 1);
    for (const Wish &wish : wishes)
        changes[std::size_t(wish.record)] = wish.identity.has_value();
    QSet<qint32> kept;
    for (std::size_t record = 1; record < changes.size(); ++record) {
        if (!changes[record])
            kept.insert(mData.identityOf(mStructure, {mParent, qint32(record)}));
    }
    return kept;
}

std::vector<std::size_t> IdentityPlan::settle(std::vector<Wish> &wishes) {
    std::vector<std::size_t> refused;
    // A record that has to keep its identity can refuse another one its wish, so it goes on until all is settled.
    for (bool isSettled = false; !isSettled;) {
        isSettled = true;
        mTaken = keptBy(wishes);
        for (std::size_t place = 0; place < wishes.size(); ++place) {
            Wish &wish = wishes[place];
            if (!wish.identity)
                continue;
            if (!mTaken.contains(*wish.identity)) {
                mTaken.insert(*wish.identity);
                continue;
            }
            wish.identity.reset();
            refused.push_back(place);
            isSettled = isSettled && wish.record == 0;
        }
    }
    std::ranges::sort(refused);
    return refused;
}

std::optional<qint32> IdentityPlan::nextFree() {
    while (mNext <= mLimits.maximum && mTaken.contains(mNext))
        ++mNext;
    return mNext <= mLimits.maximum ? std::optional(mNext++) : std::nullopt;
}
