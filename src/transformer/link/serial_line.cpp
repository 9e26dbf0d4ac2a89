#include "serial_line.h"

#include "radio_report.h"
#include "wire_frame.h"

#include <QCoreApplication>
#include <QTimer>

namespace {
constexpr qint64 kReadBuffer = 65536; // a line that babbles is not to fill the memory

[[noreturn]] void failAs(PortState state, const QString &device) {
    switch (state) {
    case PortState::Missing:
        throw LinkFailure(LinkFault::PortMissing, {device});
    case PortState::NoRights:
        throw LinkFailure(LinkFault::NoRights, {device, PortAccess::groupOf(device), PortAccess::userName()});
    case PortState::Busy:
        throw LinkFailure(LinkFault::PortBusy, {device, PortAccess::holders(device).join(QStringLiteral(", "))});
    default:
        throw LinkFailure(LinkFault::PortNotWorking, {device});
    }
}
} // namespace

SerialLine::SerialLine() { mPort.setReadBufferSize(kReadBuffer); }

void SerialLine::open(const QString &device) {
    const PortState state = PortAccess::probe(device);
    if (state != PortState::Available)
        failAs(state, device);
    if (!mLock.take(device))
        failAs(PortState::Busy, device);
    mPort.setPortName(device);
    if (mPort.open(QIODevice::ReadWrite)) {
        configure();
        return;
    }
    const bool refused = mPort.error() == QSerialPort::PermissionError;
    mLock.release();
    failAs(refused ? PortState::Busy : PortState::NotWorking, device);
}

void SerialLine::configure() {
    mPort.setDataBits(QSerialPort::Data8);
    mPort.setParity(QSerialPort::NoParity);
    mPort.setStopBits(QSerialPort::OneStop);
    mPort.setFlowControl(QSerialPort::NoFlowControl);
    setSpeed(Wire::kStartSpeed);
    // Programming cables draw their supply from these; a pseudo-terminal has none, which is no error.
    mPort.setDataTerminalReady(true);
    mPort.setRequestToSend(true);
    mPort.clearError();
    discardInput();
}

void SerialLine::close() {
    if (mPort.isOpen())
        mPort.close();
    mLock.release();
}

void SerialLine::setSpeed(int bitsPerSecond) {
    mPort.setBaudRate(bitsPerSecond);
    mSpeed = bitsPerSecond;
}

void SerialLine::write(const QByteArray &bytes) {
    checkAlive();
    mPort.write(bytes);
}

QByteArray SerialLine::waitForBytes(QDeadlineTimer deadline) {
    if (mPort.bytesAvailable() == 0)
        runEvents(deadline);
    checkAlive();
    return mPort.readAll();
}

void SerialLine::flush(QDeadlineTimer deadline) {
    while (mPort.bytesToWrite() > 0 && !deadline.hasExpired() && mPort.error() == QSerialPort::NoError)
        runEvents(deadline);
}

void SerialLine::discardInput() {
    mPort.clear(QSerialPort::Input);
    mPort.readAll();
}

// One turn of the event loop, woken by the port, by any other event or at the deadline.
void SerialLine::runEvents(QDeadlineTimer deadline) {
    QTimer alarm;
    alarm.setSingleShot(true);
    alarm.start(std::chrono::milliseconds(qMax<qint64>(0, deadline.remainingTime())));
    QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
}

void SerialLine::checkAlive() const {
    const QSerialPort::SerialPortError error = mPort.error();
    if (error == QSerialPort::ResourceError || error == QSerialPort::DeviceNotFoundError)
        throw LinkFailure(LinkFault::CutOff);
}
