#pragma once

#include "radio_identity.h"
#include "request_channel.h"

// The commands of the protocol as calls. Those that answer with an optional make one attempt and answer with nothing
// when it failed; the others repeat within bounds and throw LinkFailure.
class RadioSession {
  public:
    explicit RadioSession(RequestChannel &channel) : mChannel(channel) {} // not owned

    // First contact, at either speed: the radio may still run a session that another program left open.
    [[nodiscard]] RadioIdentity contact(const QString &device);
    void open();
    // Steps up to the high speed; where it does not work out, the session goes on at the start speed.
    void raiseSpeed(const RadioIdentity &identity);
    [[nodiscard]] std::optional<QByteArray> readBlock(Wire::Bank bank, quint32 offset, int length);
    [[nodiscard]] bool writeBlock(quint32 offset, const QByteArray &data);
    [[nodiscard]] quint32 checksum(Wire::Bank bank, quint32 size);
    // Makes the second bank the active one. False: the radio refused since it is not what content says.
    [[nodiscard]] bool commit(const Wire::CommitContent &content);
    // Ends an open session; also a block under way. Never throws.
    void close();
    // True when the last attempt heard anything at all.
    [[nodiscard]] bool heardLast() const { return mChannel.heardLast(); }
    // No attempt came through: cut off, or noise.
    [[noreturn]] void giveUp() const;

  private:
    [[nodiscard]] QByteArray demand(Wire::Command command, const QByteArray &payload, qint64 answerPayload);
    [[nodiscard]] std::optional<RadioIdentity> identify(std::chrono::milliseconds patience);
    [[nodiscard]] bool tryHighSpeed();

    RequestChannel &mChannel;
    bool mOpen = false;
};
