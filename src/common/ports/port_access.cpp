#include "port_access.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <fcntl.h>
#include <pwd.h>
#include <sys/file.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

namespace {
PortState stateOf(int errorNumber) {
    switch (errorNumber) {
    case EACCES:
    case EPERM:
        return PortState::NoRights;
    case EBUSY:
        return PortState::Busy;
    case EIO:
    case ENOTTY:
    case EINVAL:
        return PortState::NotWorking;
    default: // ENOENT, ENXIO, ENODEV, ENOTDIR
        return PortState::Missing;
    }
}

int openPort(const QString &device) {
    return ::open(QFile::encodeName(device).constData(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
}

bool takeLock(int descriptor) { return ::flock(descriptor, LOCK_EX | LOCK_NB) == 0; }
} // namespace

PortState PortAccess::probe(const QString &device) {
    const int descriptor = openPort(device);
    if (descriptor < 0)
        return stateOf(errno);
    termios settings{};
    PortState state = PortState::Available;
    if (::tcgetattr(descriptor, &settings) != 0)
        state = PortState::NotWorking;
    else if (!takeLock(descriptor) || ::ioctl(descriptor, TIOCEXCL) != 0)
        state = PortState::Busy;
    ::ioctl(descriptor, TIOCNXCL);
    ::close(descriptor);
    return state;
}

QStringList PortAccess::holders(const QString &device) {
    QStringList found;
    const QString target = QFileInfo(device).canonicalFilePath();
    if (target.isEmpty())
        return found;
    const QString own = QString::number(::getpid());
    for (const QString &process : QDir(QStringLiteral("/proc")).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        if (process == own || !process.front().isDigit())
            continue;
        const QDir descriptors(QStringLiteral("/proc/%1/fd").arg(process));
        for (const QFileInfo &descriptor : descriptors.entryInfoList(QDir::AllEntries | QDir::System))
            if (descriptor.symLinkTarget() == target) {
                QFile command(QStringLiteral("/proc/%1/comm").arg(process));
                const bool named = command.open(QIODevice::ReadOnly);
                const QString name = named ? QString::fromLocal8Bit(command.readAll()).trimmed() : QString();
                found << QStringLiteral("%1 (%2)").arg(name, process);
                break;
            }
    }
    return found;
}

QString PortAccess::groupOf(const QString &device) { return QFileInfo(device).group(); }

QString PortAccess::userName() {
    const passwd *entry = ::getpwuid(::geteuid());
    return entry == nullptr ? QString() : QString::fromLocal8Bit(entry->pw_name);
}

PortLock::~PortLock() { release(); }

bool PortLock::take(const QString &device) {
    release();
    mDescriptor = openPort(device);
    if (mDescriptor < 0)
        return false;
    if (takeLock(mDescriptor))
        return true;
    release();
    return false;
}

void PortLock::release() {
    if (mDescriptor >= 0)
        ::close(mDescriptor);
    mDescriptor = -1;
}
