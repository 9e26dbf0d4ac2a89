#include "data_document.h"

namespace DataDocuments {
bool sameContent(const DataSet &left, const DataSet &right) {
    if (left.currentTier() != right.currentTier())
        return false;
    for (qint32 place = 0; place < qint32(left.dictionary().tiers().size()); ++place) {
        const TierData &one = left.tier(TierIndex(place));
        const TierData &other = right.tier(TierIndex(place));
        if (one.versionLevel() != other.versionLevel() || !one.sameValues(other))
            return false;
    }
    return true;
}
} // namespace DataDocuments
