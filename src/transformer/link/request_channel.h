#pragma once

#include "byte_line.h"
#include "frame_decoder.h"
#include "wire_messages.h"

#include <chrono>
#include <optional>

// One request on the line at a time, with its answer, time-outs and repetitions. An answer that bears another number
// than the open request's is late and dropped.
class RequestChannel {
  public:
    // What a request needs: bytes of the expected answer's payload, how long the answer may take beyond the time on
    // the line, and how often the request is sent at most.
    struct Terms {
        qint64 answerPayload = 0;
        std::chrono::milliseconds patience{0};
        int attempts = 1;
    };

    RequestChannel(ByteLine &line, const bool &aborted); // neither is owned; both outlive the channel
    void setTap(WireTap *tap) { mTap = tap; }            // not owned; null: none

    // The payload of the answer. Nothing after the last attempt without a whole answer. Throws LinkFailure: refused by
    // the radio, cancelled, cut off.
    [[nodiscard]] std::optional<QByteArray> ask(Wire::Command command, const QByteArray &payload, const Terms &terms);
    // Sends without waiting for the answer.
    void tell(Wire::Command command, const QByteArray &payload, std::chrono::milliseconds longest);
    // Lets time pass with the event loop running; drops what arrives.
    void pause(std::chrono::milliseconds time);

    // While set, an abort is not looked at: the answer decides what is told to the user.
    void setUninterruptible(bool on) { mUninterruptible = on; }
    [[nodiscard]] ByteLine &line() { return mLine; }
    // True when bytes came that were no part of a whole frame.
    [[nodiscard]] bool sawGarbage() const { return mDecoder.skippedBytes() > 0 || mDecoder.brokenFrames() > 0; }
    // True when the last attempt heard anything at all.
    [[nodiscard]] bool heardLast() const { return mHeardLast; }

  private:
    [[nodiscard]] std::optional<WireFrame> attempt(Wire::Command command, const QByteArray &request,
                                                   QDeadlineTimer deadline);
    [[nodiscard]] std::optional<WireFrame> matchingFrame(Wire::Command command);
    void checkAborted() const;

    ByteLine &mLine;
    const bool &mAborted;
    WireTap *mTap = nullptr;
    FrameDecoder mDecoder;
    quint8 mSequence;
    bool mUninterruptible = false;
    bool mHeardLast = false;
};
