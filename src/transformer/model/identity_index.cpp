#include "identity_index.h"

std::optional<qint32> IdentityIndex::find(qint32 identity, std::span<const qint32> identities) {
    if (!mIsRead) {
        mRecords.clear();
        mRecords.reserve(qsizetype(identities.size()));
        for (auto record = qint32(identities.size()); record > 0; --record)
            mRecords.insert(identities[std::size_t(record - 1)], record);
        mIsRead = true;
        mIsUnique = mRecords.size() == qsizetype(identities.size());
    }
    const auto found = mRecords.constFind(identity);
    return found == mRecords.constEnd() ? std::nullopt : std::optional(*found);
}

void IdentityIndex::appended(qint32 identity, qint32 record) {
    if (!mIsRead)
        return;
    if (mRecords.contains(identity))
        mIsUnique = false;
    else
        mRecords.insert(identity, record);
}

void IdentityIndex::changed(qint32 before, qint32 after, qint32 record) {
    mIsRead = mIsRead && mIsUnique && !mRecords.contains(after); // else which record comes first has to be read again
    if (!mIsRead)
        return;
    mRecords.remove(before);
    mRecords.insert(after, record);
}
