#pragma once

#include <QByteArray>

// One frame on the line, in either direction:
//   0xA5 0x5A | payload length (2) | sequence number (1) | command (1) | payload | CRC-16 (2)
// Numbers most significant byte first; the CRC covers everything between the start marker and itself.
struct WireFrame {
    quint8 sequence = 0;
    quint8 command = 0;
    QByteArray payload;

    bool operator==(const WireFrame &) const = default;
};

namespace Wire {
inline constexpr quint8 kStart1 = 0xA5;
inline constexpr quint8 kStart2 = 0x5A;
inline constexpr int kHeaderSize = 6;
inline constexpr int kCrcSize = 2;
inline constexpr int kFrameOverhead = kHeaderSize + kCrcSize;

// A block is what one read or write command moves.
inline constexpr int kMinBlock = 64;
inline constexpr int kMaxBlock = 4096;
// The longest payload is a block with its offset in front.
inline constexpr int kOffsetSize = 4;
inline constexpr int kMaxPayload = kMaxBlock + kOffsetSize;

// The largest memory bank that either side believes in.
inline constexpr quint32 kMaxImage = 16U * 1024 * 1024;

inline constexpr int kStartSpeed = 19200; // bit/s, 8 data bits, no parity, 1 stop bit
inline constexpr int kHighSpeed = 115200;
inline constexpr int kBitsPerByte = 10; // with start and stop bit

// payload must not be longer than kMaxPayload (error 5).
[[nodiscard]] QByteArray encode(const WireFrame &frame);
} // namespace Wire
