#include "simulated_radio.h"

#include "checksums.h"
#include "radio_memory.h"
#include "wire_timing.h"

using namespace Wire;

namespace {
QByteArray positive(const WireFrame &asked, const QByteArray &payload) {
    return encode({asked.sequence, quint8(asked.command | kAnswerFlag), payload});
}

QByteArray negative(const WireFrame &asked, ErrorCode code) {
    return encode({asked.sequence, kNegative, Refusal{asked.command, code}.encode()});
}
} // namespace

const SimulatedRadio::Route SimulatedRadio::kRoutes[] = {
    {Command::Identify, false, &SimulatedRadio::identify},
    {Command::OpenSession, false, &SimulatedRadio::openSession},
    {Command::CloseSession, false, &SimulatedRadio::closeSession},
    {Command::SetSpeed, true, &SimulatedRadio::setSpeed},
    {Command::ReadBlock, true, &SimulatedRadio::readBlock},
    {Command::WriteBlock, true, &SimulatedRadio::writeBlock},
    {Command::BankChecksum, true, &SimulatedRadio::bankChecksum},
    {Command::Commit, true, &SimulatedRadio::commit},
};

SimulatedRadio::SimulatedRadio(RadioIdentity identity, RadioMemory &memory)
    : mIdentity(std::move(identity)), mMemory(memory) {}

QByteArray SimulatedRadio::receive(QByteArrayView bytes, Time now) {
    const qint64 damaged = mDecoder.damagedFrames();
    mDecoder.feed(bytes);
    mLastByte = now;
    return answerAll(now, damaged);
}

QByteArray SimulatedRadio::elapse(Time now) {
    const bool trialFailed = mSpeedOnTrial && now - mSpeedSince >= WireTiming::kSpeedTrial;
    const bool silent = inSession() && now - mLastFrame >= WireTiming::kSessionSilence;
    if (trialFailed || silent)
        endSession();
    if (!mDecoder.inFrame() || now - mLastByte < WireTiming::kFrameGap)
        return {};
    const qint64 damaged = mDecoder.damagedFrames();
    mDecoder.abandonPartial();
    return answerAll(now, damaged);
}

void SimulatedRadio::answerSent(Time now) {
    if (mAgreedSpeed == 0)
        return;
    mSpeedOnTrial = mAgreedSpeed != mSpeed;
    mSpeed = mAgreedSpeed;
    mAgreedSpeed = 0;
    mSpeedSince = now;
    mDecoder.clear();
}

// Only the last answer is sent: whoever sent a second request has given up the first.
QByteArray SimulatedRadio::answerAll(Time now, qint64 damagedBefore) {
    QByteArray answer;
    while (const std::optional<WireFrame> frame = mDecoder.next()) {
        mLastFrame = now;
        mSpeedOnTrial = false;
        answer = handle(*frame);
    }
    if (answer.isEmpty() && mDecoder.damagedFrames() != damagedBefore)
        return negative({.sequence = mDecoder.damagedSequence(), .command = 0, .payload = {}}, ErrorCode::FrameCheck);
    return answer;
}

QByteArray SimulatedRadio::handle(const WireFrame &frame) {
    mAgreedSpeed = 0;
    for (const Route &route : kRoutes)
        if (request(route.command) == frame.command)
            return route.needsSession && !inSession() ? negative(frame, ErrorCode::NoSession)
                                                      : (this->*route.handler)(frame);
    return negative(frame, ErrorCode::UnknownCommand);
}

QByteArray SimulatedRadio::identify(const WireFrame &frame) {
    return frame.payload.isEmpty() ? positive(frame, mIdentity.encode()) : negative(frame, ErrorCode::BadPayload);
}

QByteArray SimulatedRadio::openSession(const WireFrame &frame) {
    const auto asked = OpenSessionRequest::decode(frame.payload);
    if (!asked)
        return negative(frame, ErrorCode::BadPayload);
    if (asked->protocolVersion != kProtocolVersion)
        return negative(frame, ErrorCode::WrongProtocol);
    mLastSession = quint16(mLastSession == 0xFFFF ? 1 : mLastSession + 1);
    mSession = mLastSession;
    return positive(frame, SessionOpened{.protocolVersion = kProtocolVersion, .session = mSession}.encode());
}

QByteArray SimulatedRadio::closeSession(const WireFrame &frame) {
    if (!frame.payload.isEmpty())
        return negative(frame, ErrorCode::BadPayload);
    mSession = 0;
    if (mSpeed != kStartSpeed)
        mAgreedSpeed = kStartSpeed;
    return positive(frame, {});
}

QByteArray SimulatedRadio::setSpeed(const WireFrame &frame) {
    const auto asked = LineSpeed::decode(frame.payload);
    if (!asked)
        return negative(frame, ErrorCode::BadPayload);
    const bool known =
        asked->bitsPerSecond == kStartSpeed || (mIdentity.highSpeed && asked->bitsPerSecond == kHighSpeed);
    if (!known)
        return negative(frame, ErrorCode::SpeedRefused);
    mAgreedSpeed = int(asked->bitsPerSecond);
    return positive(frame, asked->encode());
}

QByteArray SimulatedRadio::readBlock(const WireFrame &frame) {
    const auto asked = ReadBlockRequest::decode(frame.payload);
    if (!asked)
        return negative(frame, ErrorCode::BadPayload);
    const bool inside = quint64(asked->offset) + asked->length <= mMemory.size();
    if (!inside || asked->length == 0 || asked->length > mIdentity.maxBlock)
        return negative(frame, ErrorCode::OutOfRange);
    const QByteArray &bank = asked->bank == Bank::Active ? mMemory.active() : mMemory.second();
    return positive(frame, Block{asked->offset, bank.mid(asked->offset, asked->length)}.encode());
}

QByteArray SimulatedRadio::writeBlock(const WireFrame &frame) {
    const auto block = Block::decode(frame.payload);
    if (!block)
        return negative(frame, ErrorCode::BadPayload);
    const bool inside = quint64(block->offset) + quint64(block->data.size()) <= mMemory.size();
    if (!inside || block->data.size() > mIdentity.maxBlock)
        return negative(frame, ErrorCode::OutOfRange);
    if (!mMemory.writeSecond(block->offset, block->data))
        return negative(frame, ErrorCode::WriteFailed);
    return positive(frame, BlockWritten{block->offset, quint16(block->data.size())}.encode());
}

QByteArray SimulatedRadio::bankChecksum(const WireFrame &frame) {
    const auto asked = BankRequest::decode(frame.payload);
    if (!asked)
        return negative(frame, ErrorCode::BadPayload);
    const QByteArray &bank = asked->bank == Bank::Active ? mMemory.active() : mMemory.second();
    return positive(frame, BankState{asked->bank, mMemory.size(), Checksums::crc32(bank)}.encode());
}

QByteArray SimulatedRadio::commit(const WireFrame &frame) {
    const auto asked = CommitContent::decode(frame.payload);
    if (!asked)
        return negative(frame, ErrorCode::BadPayload);
    if (asked->layout != mMemory.layout())
        return negative(frame, ErrorCode::ChecksumDiffers);
    if (asked->crc == Checksums::crc32(mMemory.active())) // a repeated commit, or nothing to change
        return positive(frame, asked->encode());
    if (asked->crc != Checksums::crc32(mMemory.second()))
        return negative(frame, ErrorCode::ChecksumDiffers);
    return mMemory.switchBanks() ? positive(frame, asked->encode()) : negative(frame, ErrorCode::WriteFailed);
}

void SimulatedRadio::endSession() {
    mSession = 0;
    mSpeed = kStartSpeed;
    mAgreedSpeed = 0;
    mSpeedOnTrial = false;
}
