#pragma once

#include "tier_data.h"

#include <vector>

// The values of all tiers; one tier is current.
class DataSet {
  public:
    // New data in every tier; the first tier is current.
    explicit DataSet(const Dictionary &dictionary);

    [[nodiscard]] const Dictionary &dictionary() const { return *mDictionary; }
    [[nodiscard]] TierIndex currentTier() const { return mCurrent; }
    void setCurrentTier(TierIndex tier) { mCurrent = tier; }
    [[nodiscard]] TierData &current() { return mTiers[mCurrent.slot()]; }
    [[nodiscard]] const TierData &current() const { return mTiers[mCurrent.slot()]; }
    [[nodiscard]] TierData &tier(TierIndex index) { return mTiers[index.slot()]; }
    [[nodiscard]] const TierData &tier(TierIndex index) const { return mTiers[index.slot()]; }
    // Exchanges the values of one tier, for example for those read from a radio.
    void replace(TierData data) { mTiers[data.tier().slot()] = std::move(data); }

  private:
    const Dictionary *mDictionary;
    TierIndex mCurrent{0};
    std::vector<TierData> mTiers;
};
