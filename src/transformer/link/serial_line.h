#pragma once

#include "byte_line.h"
#include "port_access.h"

#include <QSerialPort>

// The line over a serial port of the machine. A pseudo-terminal counts as one.
class SerialLine final : public ByteLine {
  public:
    SerialLine();

    void open(const QString &device) override;
    void close() override;
    void setSpeed(int bitsPerSecond) override;
    [[nodiscard]] int speed() const override { return mSpeed; }
    void write(const QByteArray &bytes) override;
    [[nodiscard]] QByteArray waitForBytes(QDeadlineTimer deadline) override;
    void flush(QDeadlineTimer deadline) override;
    void discardInput() override;

  private:
    void configure();
    void runEvents(QDeadlineTimer deadline);
    void checkAlive() const;

    QSerialPort mPort;
    PortLock mLock;
    int mSpeed = 0;
};
