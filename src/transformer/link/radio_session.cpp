#include "radio_session.h"

#include "radio_report.h"
#include "wire_timing.h"

using namespace Wire;
using std::chrono::milliseconds;

namespace {
constexpr int kAttempts = 5; // of a short request
constexpr int kCommitAttempts = 3;
constexpr int kContactRounds = 3; // each at both speeds
constexpr int kSpeedTrials = 3;
constexpr int kProbes = 2; // at the new speed, well within the radio's trial time
constexpr milliseconds kProbe{120};
constexpr milliseconds kSettle{10}; // the radio changes its speed behind the answer's last byte
constexpr milliseconds kSpeedFallback = WireTiming::kSpeedTrial + milliseconds(100);
constexpr milliseconds kGoodbye{40};
constexpr qint64 kIdentitySize = 34;
} // namespace

std::optional<RadioIdentity> RadioSession::identify(milliseconds patience) {
    const auto answer = mChannel.ask(Command::Identify, {}, {kIdentitySize, patience, 1});
    return answer ? RadioIdentity::decode(*answer) : std::nullopt;
}

RadioIdentity RadioSession::contact(const QString &device) {
    for (int round = 0; round < kContactRounds; ++round)
        for (const int speed : {kStartSpeed, kHighSpeed}) {
            mChannel.line().setSpeed(speed);
            if (const auto identity = identify(WireTiming::kFirstContact))
                return *identity;
        }
    throw LinkFailure(mChannel.sawGarbage() ? LinkFault::Noise : LinkFault::NoAnswer, {device});
}

void RadioSession::open() {
    const auto opened = SessionOpened::decode(demand(Command::OpenSession, OpenSessionRequest{}.encode(), 3));
    if (!opened)
        giveUp();
    mOpen = true;
}

void RadioSession::raiseSpeed(const RadioIdentity &identity) {
    if (!identity.highSpeed || mChannel.line().speed() == kHighSpeed)
        return;
    for (int trial = 0; trial < kSpeedTrials; ++trial) {
        if (tryHighSpeed())
            return;
        mChannel.line().setSpeed(kStartSpeed);
        mChannel.pause(kSpeedFallback); // until the radio is back at it
        open();
    }
}

// A lost answer may have changed the radio's speed all the same: so the new speed is probed in either case.
bool RadioSession::tryHighSpeed() {
    try {
        (void)mChannel.ask(Command::SetSpeed, LineSpeed{kHighSpeed}.encode(), {4, WireTiming::kAnswer, 1});
    } catch (const LinkFailure &failure) {
        if (failure.fault != LinkFault::Refused)
            throw;
        return true; // it stays at the start speed
    }
    mChannel.line().setSpeed(kHighSpeed);
    mChannel.pause(kSettle);
    for (int probe = 0; probe < kProbes; ++probe)
        if (identify(kProbe))
            return true;
    return false;
}

std::optional<QByteArray> RadioSession::readBlock(Bank bank, quint32 offset, int length) {
    const ReadBlockRequest request{bank, offset, quint16(length)};
    const auto answer =
        mChannel.ask(Command::ReadBlock, request.encode(), {kOffsetSize + length, WireTiming::kAnswer, 1});
    if (!answer)
        return std::nullopt;
    const auto block = Block::decode(*answer);
    if (!block || block->offset != offset || block->data.size() != length)
        return std::nullopt;
    return block->data;
}

bool RadioSession::writeBlock(quint32 offset, const QByteArray &data) {
    const auto answer = mChannel.ask(Command::WriteBlock, Block{offset, data}.encode(), {6, WireTiming::kWrite, 1});
    if (!answer)
        return false;
    const auto written = BlockWritten::decode(*answer);
    return written && written->offset == offset && written->length == data.size();
}

quint32 RadioSession::checksum(Bank bank, quint32 size) {
    const auto state = BankState::decode(demand(Command::BankChecksum, BankRequest{bank}.encode(), 9));
    if (!state || state->bank != bank || state->size != size)
        throw LinkFailure(LinkFault::ChecksumDiffers);
    return state->crc;
}

bool RadioSession::commit(const CommitContent &content) {
    try {
        const auto answer = mChannel.ask(Command::Commit, content.encode(), {6, WireTiming::kCommit, kCommitAttempts});
        if (!answer)
            giveUp();
        return true;
    } catch (const LinkFailure &failure) {
        const QString differs = QString::number(int(ErrorCode::ChecksumDiffers));
        const QString failed = QString::number(int(ErrorCode::WriteFailed));
        const QString code = failure.details.value(0);
        if (failure.fault == LinkFault::Refused && (code == differs || code == failed))
            return false;
        throw;
    }
}

void RadioSession::close() {
    if (!mOpen)
        return;
    mOpen = false;
    try {
        mChannel.setUninterruptible(true);
        mChannel.tell(Command::CloseSession, {}, kGoodbye);
    } catch (const LinkFailure &) {
        return; // the radio ends a silent session by itself
    }
}

QByteArray RadioSession::demand(Command command, const QByteArray &payload, qint64 answerPayload) {
    const auto answer = mChannel.ask(command, payload, {answerPayload, WireTiming::kAnswer, kAttempts});
    if (!answer)
        giveUp();
    return *answer;
}

void RadioSession::giveUp() const { throw LinkFailure(mChannel.heardLast() ? LinkFault::Noise : LinkFault::CutOff); }
