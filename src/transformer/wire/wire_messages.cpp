#include "wire_messages.h"

#include "byte_fields.h"

namespace Wire {
namespace {
// The message if its payload was whole and nothing was left over.
template <class Message>
std::optional<Message> whole(const ByteReader &reader, const Message &message, bool valid = true) {
    if (!reader.complete() || !valid)
        return std::nullopt;
    return message;
}

bool isBank(quint8 code) { return code <= quint8(Bank::Second); }
} // namespace

QByteArray Refusal::encode() const { return ByteWriter().u8(command).u8(quint8(code)).data(); }

std::optional<Refusal> Refusal::decode(const QByteArray &payload) {
    ByteReader reader(payload);
    Refusal refusal;
    refusal.command = reader.u8();
    refusal.code = ErrorCode(reader.u8());
    return whole(reader, refusal);
}

QByteArray OpenSessionRequest::encode() const { return ByteWriter().u8(protocolVersion).data(); }

std::optional<OpenSessionRequest> OpenSessionRequest::decode(const QByteArray &payload) {
    ByteReader reader(payload);
    OpenSessionRequest request;
    request.protocolVersion = reader.u8();
    return whole(reader, request);
}

QByteArray SessionOpened::encode() const { return ByteWriter().u8(protocolVersion).u16(session).data(); }

std::optional<SessionOpened> SessionOpened::decode(const QByteArray &payload) {
    ByteReader reader(payload);
    SessionOpened opened;
    opened.protocolVersion = reader.u8();
    opened.session = reader.u16();
    return whole(reader, opened);
}

QByteArray LineSpeed::encode() const { return ByteWriter().u32(bitsPerSecond).data(); }

std::optional<LineSpeed> LineSpeed::decode(const QByteArray &payload) {
    ByteReader reader(payload);
    LineSpeed speed;
    speed.bitsPerSecond = reader.u32();
    return whole(reader, speed);
}

QByteArray ReadBlockRequest::encode() const { return ByteWriter().u8(quint8(bank)).u32(offset).u16(length).data(); }

std::optional<ReadBlockRequest> ReadBlockRequest::decode(const QByteArray &payload) {
    ByteReader reader(payload);
    const quint8 bank = reader.u8();
    ReadBlockRequest request;
    request.bank = Bank(bank);
    request.offset = reader.u32();
    request.length = reader.u16();
    return whole(reader, request, isBank(bank));
}

QByteArray Block::encode() const { return ByteWriter().u32(offset).bytes(data).data(); }

std::optional<Block> Block::decode(const QByteArray &payload) {
    ByteReader reader(payload);
    Block block;
    block.offset = reader.u32();
    block.data = reader.rest();
    return whole(reader, block, !block.data.isEmpty());
}

QByteArray BlockWritten::encode() const { return ByteWriter().u32(offset).u16(length).data(); }

std::optional<BlockWritten> BlockWritten::decode(const QByteArray &payload) {
    ByteReader reader(payload);
    BlockWritten written;
    written.offset = reader.u32();
    written.length = reader.u16();
    return whole(reader, written);
}

QByteArray BankRequest::encode() const { return ByteWriter().u8(quint8(bank)).data(); }

std::optional<BankRequest> BankRequest::decode(const QByteArray &payload) {
    ByteReader reader(payload);
    const quint8 bank = reader.u8();
    return whole(reader, BankRequest{.bank = Bank(bank)}, isBank(bank));
}

QByteArray BankState::encode() const { return ByteWriter().u8(quint8(bank)).u32(size).u32(crc).data(); }

std::optional<BankState> BankState::decode(const QByteArray &payload) {
    ByteReader reader(payload);
    const quint8 bank = reader.u8();
    BankState state;
    state.bank = Bank(bank);
    state.size = reader.u32();
    state.crc = reader.u32();
    return whole(reader, state, isBank(bank));
}

QByteArray CommitContent::encode() const { return ByteWriter().u16(layout).u32(crc).data(); }

std::optional<CommitContent> CommitContent::decode(const QByteArray &payload) {
    ByteReader reader(payload);
    CommitContent content;
    content.layout = reader.u16();
    content.crc = reader.u32();
    return whole(reader, content);
}
} // namespace Wire
