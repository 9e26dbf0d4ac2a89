#include "pseudo_terminal.h"

#include "wire_frame.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <termios.h>
#include <unistd.h>

namespace {
constexpr int kChunk = 8192;

QString systemError() { return QString::fromLocal8Bit(std::strerror(errno)); }
} // namespace

PseudoTerminal::~PseudoTerminal() {
    if (!mLink.isEmpty())
        QFile::remove(mLink);
    for (const int descriptor : {mMaster, mSlave})
        if (descriptor >= 0)
            ::close(descriptor);
}

QString PseudoTerminal::open(const QString &linkPath) {
    mMaster = ::posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    if (mMaster < 0 || ::grantpt(mMaster) != 0 || ::unlockpt(mMaster) != 0)
        return systemError();
    mSlave = ::open(::ptsname(mMaster), O_RDWR | O_NOCTTY | O_CLOEXEC);
    termios settings{};
    if (mSlave < 0 || ::tcgetattr(mSlave, &settings) != 0)
        return systemError();
    ::cfmakeraw(&settings);
    ::cfsetspeed(&settings, B19200);
    if (::tcsetattr(mSlave, TCSANOW, &settings) != 0)
        return systemError();
    return makeLink(linkPath);
}

QString PseudoTerminal::makeLink(const QString &linkPath) {
    if (QFileInfo(linkPath).isSymLink())
        QFile::remove(linkPath);
    if (::symlink(::ptsname(mMaster), QFile::encodeName(linkPath).constData()) != 0)
        return systemError();
    mLink = linkPath;
    return {};
}

int PseudoTerminal::farSpeed() const {
    termios settings{};
    if (::tcgetattr(mMaster, &settings) != 0)
        return 0;
    switch (::cfgetospeed(&settings)) {
    case B19200:
        return Wire::kStartSpeed;
    case B115200:
        return Wire::kHighSpeed;
    default:
        return 0;
    }
}

QByteArray PseudoTerminal::read() {
    QByteArray bytes(kChunk, Qt::Uninitialized);
    const ssize_t got = ::read(mMaster, bytes.data(), std::size_t(bytes.size()));
    bytes.resize(got > 0 ? qsizetype(got) : 0);
    return bytes;
}

qsizetype PseudoTerminal::write(QByteArrayView bytes) {
    const ssize_t taken = ::write(mMaster, bytes.data(), std::size_t(bytes.size()));
    return taken > 0 ? qsizetype(taken) : 0;
}
