#pragma once

#include "wire_frame.h"

#include <chrono>

// The time-outs that both ends of the line keep.
namespace WireTiming {
using std::chrono::milliseconds;

// Both ends: a frame that stops arriving for this long is given up.
inline constexpr milliseconds kFrameGap{100};
// The radio: after a change of speed, without a whole frame for this long, it is back at the start speed and its
// session is closed.
inline constexpr milliseconds kSpeedTrial{500};
// The radio: a session without a whole frame for this long is closed, and the speed is the start speed again.
inline constexpr milliseconds kSessionSilence{5000};

// The programmer: first contact at one speed.
inline constexpr milliseconds kFirstContact{300};
// The programmer: what an answer may take beyond the time of its bytes on the line; a write and a commit end in flash.
inline constexpr milliseconds kAnswer{300};
inline constexpr milliseconds kWrite{600};
inline constexpr milliseconds kCommit{1500};

// How long so many bytes take on the line, rounded up.
[[nodiscard]] constexpr milliseconds onLine(qint64 bytes, int bitsPerSecond) {
    return milliseconds((bytes * Wire::kBitsPerByte * 1000 + bitsPerSecond - 1) / bitsPerSecond);
}
} // namespace WireTiming
