#pragma once

#include <QString>
#include <QStringList>

// Why a port can or cannot be opened at this moment, by asking the system.
enum class PortState {
    Available,
    Missing,    // no such device
    NoRights,   // this user may not open it
    Busy,       // another program holds it
    NotWorking, // a name without hardware behind it, or not a serial port
};

namespace PortAccess {
// Opens read-write, non-blocking and exclusive, and closes again.
[[nodiscard]] PortState probe(const QString &device);
// The programs that have the device open, as "name (process number)", as far as this user may see them.
[[nodiscard]] QStringList holders(const QString &device);
// Who may open the device: the name of its group, and of this user. "" where the system does not say.
[[nodiscard]] QString groupOf(const QString &device);
[[nodiscard]] QString userName();
} // namespace PortAccess

// An advisory lock on a port, so that a second program of this kind is refused. Held until the object goes.
class PortLock {
  public:
    PortLock() = default;
    ~PortLock();
    PortLock(const PortLock &) = delete;
    PortLock &operator=(const PortLock &) = delete;

    // False: another process holds it, or the port cannot be opened.
    [[nodiscard]] bool take(const QString &device);
    void release();

  private:
    int mDescriptor = -1;
};
