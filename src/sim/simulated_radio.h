#pragma once

#include "frame_decoder.h"
#include "radio_identity.h"
#include "wire_messages.h"

#include <chrono>

class RadioMemory;

// The radio's side of the protocol: bytes in, bytes out, without a line. Times are since any fixed moment and never go
// back.
class SimulatedRadio {
  public:
    using Time = std::chrono::milliseconds;

    // memory is not owned.
    SimulatedRadio(RadioIdentity identity, RadioMemory &memory);

    // What the radio answers to bytes that have arrived. A non-empty answer replaces one that is still being sent.
    [[nodiscard]] QByteArray receive(QByteArrayView bytes, Time now);
    // To be called at least every kFrameGap: time-outs of frames, speed trial and session.
    [[nodiscard]] QByteArray elapse(Time now);
    // The last byte of an answer is on its way: an agreed change of speed takes place.
    void answerSent(Time now);

    [[nodiscard]] int speed() const { return mSpeed; } // bit/s
    [[nodiscard]] bool inSession() const { return mSession != 0; }

  private:
    using Handler = QByteArray (SimulatedRadio::*)(const WireFrame &);
    struct Route {
        Wire::Command command;
        bool needsSession;
        Handler handler;
    };
    static const Route kRoutes[];

    QByteArray answerAll(Time now, qint64 damagedBefore);
    QByteArray handle(const WireFrame &frame);
    QByteArray identify(const WireFrame &frame);
    QByteArray openSession(const WireFrame &frame);
    QByteArray closeSession(const WireFrame &frame);
    QByteArray setSpeed(const WireFrame &frame);
    QByteArray readBlock(const WireFrame &frame);
    QByteArray writeBlock(const WireFrame &frame);
    QByteArray bankChecksum(const WireFrame &frame);
    QByteArray commit(const WireFrame &frame);
    void endSession();

    RadioIdentity mIdentity;
    RadioMemory &mMemory;
    FrameDecoder mDecoder;
    Time mLastByte{0};
    Time mLastFrame{0};
    Time mSpeedSince{0};
    bool mSpeedOnTrial = false;
    quint16 mSession = 0; // 0: none
    quint16 mLastSession = 0;
    int mSpeed = Wire::kStartSpeed;
    int mAgreedSpeed = 0; // 0: no change is due
};
