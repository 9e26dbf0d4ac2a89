#pragma once

#include <QByteArray>
#include <QDeadlineTimer>
#include <QString>

// A serial line to a radio.
class ByteLine {
  public:
    virtual ~ByteLine() = default;

    // Opens for exclusive use at the start speed, 8N1, and throws away what has already arrived. Throws LinkFailure
    // with a port fault.
    virtual void open(const QString &device) = 0;
    virtual void close() = 0;
    virtual void setSpeed(int bitsPerSecond) = 0;
    [[nodiscard]] virtual int speed() const = 0;
    virtual void write(const QByteArray &bytes) = 0;
    // What has arrived; waits for it until the deadline or until the line is woken, while the event loop runs. Empty:
    // nothing came. Throws LinkFailure (cut off) when the port itself has gone.
    [[nodiscard]] virtual QByteArray waitForBytes(QDeadlineTimer deadline) = 0;
    // Waits until the bytes given to write() are with the system, at most until the deadline.
    virtual void flush(QDeadlineTimer deadline) = 0;
    virtual void discardInput() = 0;
};

// Sees the bytes of both directions, for traces.
class WireTap {
  public:
    virtual ~WireTap() = default;
    virtual void sent(const QByteArray &bytes, int bitsPerSecond) = 0;
    virtual void received(const QByteArray &bytes, int bitsPerSecond) = 0;
};
