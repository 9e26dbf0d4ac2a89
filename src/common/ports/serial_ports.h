#pragma once

#include <QString>

#include <optional>
#include <vector>

// One serial port of the machine.
struct SerialPortEntry {
    int number = 0; // the "COM" number, from 1
    QString device; // path, for example "/dev/ttyUSB0"
    QString name;   // for people: a given one, else maker and product of a USB adapter; may be empty

    bool operator==(const SerialPortEntry &) const = default;
};

// The machine's serial ports and their numbers. Numbers are fixed arithmetic, the same in every run: ttyS<n> is n + 1,
// ttyUSB<n> is n + 101, ttyACM<n> is n + 201. A ttyS without a chip behind it is left out. The environment variable
// KX4600_PORTS ("number=device" or "number=device=name", joined by bars) replaces the list; a part of another shape is
// passed over.
class SerialPorts {
  public:
    // The machine's own ports.
    SerialPorts();
    // For tests: the folders that stand for /sys/class/tty and /dev, and the text that stands for KX4600_PORTS (null:
    // not set).
    SerialPorts(QString classFolder, QString deviceFolder, QString replacement);

    // By ascending number.
    [[nodiscard]] std::vector<SerialPortEntry> List() const;
    // "|1:|101:|"; "|" where there is no port.
    [[nodiscard]] QString GetAvailableComPorts() const;
    // Takes a number ("3"), "COM3", "COM3:" (any case) or a path. A number gives its device also where the list does
    // not hold it at present (an adapter that is unplugged), a path itself. Nothing for any other text.
    [[nodiscard]] std::optional<QString> DeviceOf(const QString &port) const;
    // The entry of a device, made up (number 0, no name) where the list does not hold it.
    [[nodiscard]] SerialPortEntry EntryOf(const QString &device) const;
    // Whether the port can be opened read-write for exclusive use at this moment.
    [[nodiscard]] bool IsComPortAvailable(int number) const;

  private:
    [[nodiscard]] std::vector<SerialPortEntry> replacedList() const;
    [[nodiscard]] std::vector<SerialPortEntry> machineList() const;
    [[nodiscard]] bool hasChip(const QString &tty) const;
    [[nodiscard]] QString adapterName(const QString &tty) const;

    QString mClassFolder;
    QString mDeviceFolder;
    QString mReplacement;
};
