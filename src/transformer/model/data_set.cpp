#include "data_set.h"

DataSet::DataSet(const Dictionary &dictionary) : mDictionary(&dictionary) {
    for (qint32 tier = 0; tier < qint32(dictionary.tiers().size()); ++tier)
        mTiers.emplace_back(dictionary, TierIndex(tier));
}
