#include "request_channel.h"

#include "radio_report.h"
#include "wire_timing.h"

#include <QRandomGenerator>

using namespace Wire;

// The first number is a random one, so that late answers to an earlier program do not match.
RequestChannel::RequestChannel(ByteLine &line, const bool &aborted)
    : mLine(line), mAborted(aborted), mSequence(quint8(QRandomGenerator::global()->bounded(256))) {}

std::optional<QByteArray> RequestChannel::ask(Command command, const QByteArray &payload, const Terms &terms) {
    ++mSequence;
    const QByteArray request = encode({mSequence, Wire::request(command), payload});
    const qint64 bytes = request.size() + kFrameOverhead + terms.answerPayload;
    for (int sent = 0; sent < terms.attempts; ++sent) {
        const QDeadlineTimer deadline(WireTiming::onLine(bytes, mLine.speed()) + terms.patience);
        const std::optional<WireFrame> answer = attempt(command, request, deadline);
        if (!answer)
            continue;
        if (answer->command == Wire::answer(command))
            return answer->payload;
        const std::optional<Refusal> refusal = Refusal::decode(answer->payload);
        if (refusal && refusal->code != ErrorCode::FrameCheck)
            throw LinkFailure(LinkFault::Refused, {QString::number(int(refusal->code))});
    }
    return std::nullopt;
}

// Nothing: no answer in time, or a damaged one.
std::optional<WireFrame> RequestChannel::attempt(Command command, const QByteArray &request, QDeadlineTimer deadline) {
    mDecoder.clear();
    if (mTap != nullptr)
        mTap->sent(request, mLine.speed());
    mLine.write(request);
    mHeardLast = false;
    const qint64 damaged = mDecoder.damagedFrames();
    for (;;) {
        checkAborted();
        const QDeadlineTimer gap(WireTiming::kFrameGap);
        const bool inFrame = mDecoder.inFrame();
        const QDeadlineTimer limit = inFrame ? qMin(gap, deadline) : deadline;
        const QByteArray bytes = mLine.waitForBytes(limit);
        if (mTap != nullptr && !bytes.isEmpty())
            mTap->received(bytes, mLine.speed());
        mDecoder.feed(bytes);
        mHeardLast = mHeardLast || !bytes.isEmpty();
        const bool silent = bytes.isEmpty() && limit.hasExpired();
        if (silent)
            mDecoder.abandonPartial();
        if (std::optional<WireFrame> frame = matchingFrame(command))
            return frame;
        if (silent || mDecoder.damagedFrames() != damaged)
            return std::nullopt;
    }
}

std::optional<WireFrame> RequestChannel::matchingFrame(Command command) {
    while (std::optional<WireFrame> frame = mDecoder.next()) {
        const bool known = frame->command == Wire::answer(command) || frame->command == kNegative;
        if (known && frame->sequence == mSequence)
            return frame;
    }
    return std::nullopt;
}

void RequestChannel::tell(Command command, const QByteArray &payload, std::chrono::milliseconds longest) {
    ++mSequence;
    const QByteArray request = encode({mSequence, Wire::request(command), payload});
    if (mTap != nullptr)
        mTap->sent(request, mLine.speed());
    mLine.write(request);
    mLine.flush(QDeadlineTimer(longest));
}

void RequestChannel::pause(std::chrono::milliseconds time) {
    const QDeadlineTimer deadline(time);
    while (!deadline.hasExpired()) {
        checkAborted();
        (void)mLine.waitForBytes(deadline);
    }
}

void RequestChannel::checkAborted() const {
    if (mAborted && !mUninterruptible)
        throw LinkFailure(LinkFault::Cancelled);
}
