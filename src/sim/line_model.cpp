#include "line_model.h"

#include "wire_frame.h"

FaultyLine::FaultyLine(const LineFaults &faults) : mFaults(faults), mRandom(faults.seed) {}

QByteArray FaultyLine::pass(QByteArrayView bytes, bool sameSpeed) {
    std::uniform_real_distribution<double> chance(0, 1);
    QByteArray out;
    for (const char byte : bytes) {
        const bool cut = mFaults.cutAfter >= 0 && mCounts.bytes >= mFaults.cutAfter;
        ++mCounts.bytes;
        if (cut || !sameSpeed) {
            ++mCounts.swallowed;
            if (!cut)
                out.append(char(mRandom() & 0xFF));
        } else if (chance(mRandom) < mFaults.drop) {
            ++mCounts.dropped;
        } else if (chance(mRandom) < mFaults.corrupt) {
            ++mCounts.corrupted;
            out.append(char(byte ^ (1 << (mRandom() % 8))));
        } else {
            out.append(byte);
        }
    }
    return out;
}

LineDirection::LineDirection(bool paced, Time delay) : mPaced(paced), mDelay(delay) {}

void LineDirection::put(QByteArrayView bytes, int bitsPerSecond, Time now) {
    using Nanoseconds = std::chrono::nanoseconds;
    const Nanoseconds perByte(mPaced ? qint64(Wire::kBitsPerByte) * 1'000'000'000 / bitsPerSecond : 0);
    const Time start = std::max(now, mFreeAt);
    Nanoseconds sent(0);
    for (const char byte : bytes) {
        sent += perByte;
        mBytes.push_back({start + std::chrono::duration_cast<Time>(sent) + mDelay, byte});
    }
    mFreeAt = start + std::chrono::duration_cast<Time>(sent);
}

QByteArray LineDirection::take(Time now) {
    QByteArray out;
    while (!mBytes.empty() && mBytes.front().due <= now) {
        out.append(mBytes.front().byte);
        mBytes.pop_front();
    }
    return out;
}

void LineDirection::clear() {
    mBytes.clear();
    mFreeAt = Time(0);
}
