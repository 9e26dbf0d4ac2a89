#pragma once

#include <QByteArray>

#include <optional>

// Commands, answers and their payloads. The programmer asks, the radio answers; an answer bears the request's sequence
// number. docs/radio-protocol.md is the definition.
namespace Wire {
enum class Command : quint8 {
    Identify = 0x01,
    OpenSession = 0x02,
    CloseSession = 0x03,
    SetSpeed = 0x04,
    ReadBlock = 0x05,
    WriteBlock = 0x06,
    BankChecksum = 0x07,
    Commit = 0x08,
};
inline constexpr quint8 kAnswerFlag = 0x80; // an answer is the command with this bit set
inline constexpr quint8 kNegative = 0xFF;   // or this, with a Refusal as its payload
inline constexpr quint8 kProtocolVersion = 1;

[[nodiscard]] constexpr quint8 request(Command command) { return quint8(command); }
[[nodiscard]] constexpr quint8 answer(Command command) { return quint8(command) | kAnswerFlag; }

enum class ErrorCode : quint8 {
    FrameCheck = 1,      // the CRC was wrong or the rest did not come: send it again
    UnknownCommand = 2,  // the radio's software does not have it
    BadPayload = 3,      // length or content of the payload
    NoSession = 4,       // the command needs an open session
    OutOfRange = 5,      // offset and length leave the bank, or the block is too long
    WrongProtocol = 6,   // protocol version that the radio does not speak
    SpeedRefused = 7,    // the radio stays at the present speed
    ChecksumDiffers = 8, // the second bank is not what the commit says: nothing was switched
    WriteFailed = 9,     // the memory did not take the block
};

enum class Bank : quint8 { Active = 0, Second = 1 };

struct Refusal {
    quint8 command = 0;
    ErrorCode code = ErrorCode::UnknownCommand;
    [[nodiscard]] QByteArray encode() const;
    [[nodiscard]] static std::optional<Refusal> decode(const QByteArray &payload);
};

// Request and answer of OpenSession: protocol version; the answer also names the session, for traces.
struct SessionOpened {
    quint8 protocolVersion = kProtocolVersion;
    quint16 session = 0;
    [[nodiscard]] QByteArray encode() const;
    [[nodiscard]] static std::optional<SessionOpened> decode(const QByteArray &payload);
};

struct OpenSessionRequest {
    quint8 protocolVersion = kProtocolVersion;
    [[nodiscard]] QByteArray encode() const;
    [[nodiscard]] static std::optional<OpenSessionRequest> decode(const QByteArray &payload);
};

// Request and answer of SetSpeed, in bit/s.
struct LineSpeed {
    quint32 bitsPerSecond = 0;
    [[nodiscard]] QByteArray encode() const;
    [[nodiscard]] static std::optional<LineSpeed> decode(const QByteArray &payload);
};

struct ReadBlockRequest {
    Bank bank = Bank::Active;
    quint32 offset = 0;
    quint16 length = 0;
    [[nodiscard]] QByteArray encode() const;
    [[nodiscard]] static std::optional<ReadBlockRequest> decode(const QByteArray &payload);
};

// Answer of ReadBlock and request of WriteBlock, which always means the second bank.
struct Block {
    quint32 offset = 0;
    QByteArray data;
    [[nodiscard]] QByteArray encode() const;
    [[nodiscard]] static std::optional<Block> decode(const QByteArray &payload);
};

struct BlockWritten {
    quint32 offset = 0;
    quint16 length = 0;
    [[nodiscard]] QByteArray encode() const;
    [[nodiscard]] static std::optional<BlockWritten> decode(const QByteArray &payload);
};

struct BankRequest {
    Bank bank = Bank::Active;
    [[nodiscard]] QByteArray encode() const;
    [[nodiscard]] static std::optional<BankRequest> decode(const QByteArray &payload);
};

// CRC-32 of one whole bank.
struct BankState {
    Bank bank = Bank::Active;
    quint32 size = 0;
    quint32 crc = 0;
    [[nodiscard]] QByteArray encode() const;
    [[nodiscard]] static std::optional<BankState> decode(const QByteArray &payload);
};

// The content that is to be active: layout number and CRC-32. The answer's payload is the same.
struct CommitContent {
    quint16 layout = 0;
    quint32 crc = 0;
    [[nodiscard]] QByteArray encode() const;
    [[nodiscard]] static std::optional<CommitContent> decode(const QByteArray &payload);
};
} // namespace Wire
