#pragma once

#include <QByteArray>

#include <chrono>
#include <deque>
#include <random>

// What may happen to the bytes of both directions.
struct LineFaults {
    double drop = 0;                    // probability per byte that it is lost
    double corrupt = 0;                 // probability per byte that one bit of it turns over
    std::chrono::milliseconds delay{0}; // how much later the radio's bytes arrive
    qint64 cutAfter = -1;               // bytes of both directions after which the line is dead; below 0: never
    quint32 seed = 1;
};

// How often a fault took effect.
struct LineCounts {
    qint64 bytes = 0;
    qint64 dropped = 0;
    qint64 corrupted = 0;
    qint64 swallowed = 0; // behind the cut, or at a wrong speed
};

// The faults of one line, shared by its two directions.
class FaultyLine {
  public:
    explicit FaultyLine(const LineFaults &faults);

    // The bytes that come out at the other end. sameSpeed false: both ends run at different speeds, so that nothing
    // but garbage does.
    [[nodiscard]] QByteArray pass(QByteArrayView bytes, bool sameSpeed);
    [[nodiscard]] const LineFaults &faults() const { return mFaults; }
    [[nodiscard]] const LineCounts &counts() const { return mCounts; }

  private:
    LineFaults mFaults;
    LineCounts mCounts;
    std::mt19937 mRandom;
};

// One direction: a byte takes ten bits' time at the line's speed and comes out behind all bytes before it.
class LineDirection {
  public:
    using Time = std::chrono::microseconds;

    // paced false: bytes take no time but the delay.
    LineDirection(bool paced, Time delay);

    void put(QByteArrayView bytes, int bitsPerSecond, Time now);
    // The bytes that have come out by now.
    [[nodiscard]] QByteArray take(Time now);
    void clear();
    [[nodiscard]] bool isEmpty() const { return mBytes.empty(); }
    [[nodiscard]] qsizetype size() const { return qsizetype(mBytes.size()); }
    // When the next byte comes out; only while not empty.
    [[nodiscard]] Time nextDue() const { return mBytes.front().due; }

  private:
    struct TimedByte {
        Time due;
        char byte;
    };

    bool mPaced;
    Time mDelay;
    Time mFreeAt{0}; // when the line has sent all it was given
    std::deque<TimedByte> mBytes;
};
