#include "radio_timing.h"

#include <algorithm>
#include <chrono>
#include <ctime>

namespace {
double processorSeconds() {
    timespec now{};
    ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return double(now.tv_sec) + double(now.tv_nsec) / 1e9;
}
} // namespace

RadioTiming::RadioTiming() {
    mTicks.setTimerType(Qt::PreciseTimer);
    mTicks.setInterval(std::chrono::milliseconds(5));
    QObject::connect(&mTicks, &QTimer::timeout, &mTicks, [this] { turned(); });
}

void RadioTiming::start() {
    mPhases.clear();
    mClock.start();
    mLastTurn = 0;
    mLongestGap = 0;
    mWorkAtLastTurn = processorSeconds();
    mLongestWork = 0;
    mTicks.start();
}

// What came behind the last turn counts too.
void RadioTiming::stop() {
    turned();
    mTicks.stop();
}

void RadioTiming::turned() {
    const double now = seconds();
    mLongestGap = std::max(mLongestGap, now - mLastTurn);
    mLastTurn = now;
    const double work = processorSeconds();
    mLongestWork = std::max(mLongestWork, work - mWorkAtLastTurn);
    mWorkAtLastTurn = work;
}

void RadioTiming::mobjTransformerEvents_ProgressBarStart(qint32 /*Total*/, const QString & /*strProgressTitle*/) {
    mPhaseStart = seconds();
}

// A new item is a new phase; it starts where the last one ended.
void RadioTiming::mobjTransformerEvents_ProgressPing(qint32 lngIncrement, const QString &strItemName,
                                                     const QString & /*strItemPercentage*/) {
    const double now = seconds();
    if (mPhases.isEmpty() || mPhases.back().name != strItemName)
        mPhases.append({strItemName, 0, mPhaseStart, now});
    mPhases.back().bytes += lngIncrement;
    mPhases.back().endedAt = now;
    mPhaseStart = now;
}
