#include "serial_ports.h"

#include "port_access.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <limits>

namespace {
struct Family {
    const char *prefix;
    int base; // number of the family's port 0
    bool needsChip;
};
// From the highest base down, so that a number finds its family.
constexpr std::array kFamilies{Family{"ttyACM", 201, false}, Family{"ttyUSB", 101, false}, Family{"ttyS", 1, true}};

constexpr int kAdapterDepth = 4;

// The text of a file of one line; "" where there is none.
QString lineOf(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readLine()).trimmed() : QString();
}

// The number behind prefix; nothing if something else stands there.
std::optional<int> indexBehind(const QString &name, const Family &family) {
    const QLatin1String prefix(family.prefix);
    if (!name.startsWith(prefix))
        return std::nullopt;
    bool ok = false;
    const int index = name.mid(prefix.size()).toInt(&ok);
    const bool plain = ok && name == QString(prefix) + QString::number(index);
    return plain && index >= 0 && index < std::numeric_limits<int>::max() - family.base ? std::optional(index)
                                                                                        : std::nullopt;
}
} // namespace

SerialPorts::SerialPorts()
    : SerialPorts(QStringLiteral("/sys/class/tty"), QStringLiteral("/dev"), qEnvironmentVariable("KX4600_PORTS")) {}

SerialPorts::SerialPorts(QString classFolder, QString deviceFolder, QString replacement)
    : mClassFolder(std::move(classFolder)), mDeviceFolder(std::move(deviceFolder)),
      mReplacement(std::move(replacement)) {}

std::vector<SerialPortEntry> SerialPorts::List() const {
    std::vector<SerialPortEntry> entries = mReplacement.isEmpty() ? machineList() : replacedList();
    std::ranges::stable_sort(entries, {}, &SerialPortEntry::number);
    return entries;
}

std::vector<SerialPortEntry> SerialPorts::replacedList() const {
    std::vector<SerialPortEntry> entries;
    static const QRegularExpression shape(QStringLiteral("^([1-9][0-9]{0,5})=([^=]+)(?:=(.*))?$"));
    for (const QString &part : mReplacement.split(QLatin1Char('|'))) {
        const QRegularExpressionMatch match = shape.match(part);
        if (match.hasMatch())
            entries.push_back({match.captured(1).toInt(), match.captured(2), match.captured(3)});
    }
    return entries;
}

std::vector<SerialPortEntry> SerialPorts::machineList() const {
    std::vector<SerialPortEntry> entries;
    for (const QString &tty : QDir(mClassFolder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::System))
        for (const Family &family : kFamilies) {
            const std::optional<int> index = indexBehind(tty, family);
            if (index && (!family.needsChip || hasChip(tty)))
                entries.push_back({family.base + *index, mDeviceFolder + QLatin1Char('/') + tty, adapterName(tty)});
        }
    return entries;
}

bool SerialPorts::hasChip(const QString &tty) const {
    QFile type(mClassFolder + QLatin1Char('/') + tty + QStringLiteral("/type"));
    return type.open(QIODevice::ReadOnly) && type.readAll().trimmed().toInt() != 0;
}

// The device of a USB adapter is an interface; maker and product stand one or two folders above it.
QString SerialPorts::adapterName(const QString &tty) const {
    QString folder = QFileInfo(mClassFolder + QLatin1Char('/') + tty + QStringLiteral("/device")).canonicalFilePath();
    for (int above = 0; above < kAdapterDepth && !folder.isEmpty(); ++above) {
        const QString product = lineOf(folder + QStringLiteral("/product"));
        if (!product.isEmpty())
            return (lineOf(folder + QStringLiteral("/manufacturer")) + QLatin1Char(' ') + product).simplified();
        folder = QFileInfo(folder).path();
    }
    return {};
}

QString SerialPorts::GetAvailableComPorts() const {
    QString bars = QStringLiteral("|");
    for (const SerialPortEntry &entry : List())
        bars += QString::number(entry.number) + QStringLiteral(":|");
    return bars;
}

std::optional<QString> SerialPorts::DeviceOf(const QString &port) const {
    if (port.startsWith(QLatin1Char('/')) || port.startsWith(QLatin1Char('.')))
        return port;
    static const QRegularExpression shape(QStringLiteral("^(?:COM)?([1-9][0-9]{0,5}):?$"),
                                          QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = shape.match(port);
    if (!match.hasMatch())
        return std::nullopt;
    const int number = match.captured(1).toInt();
    for (const SerialPortEntry &entry : List())
        if (entry.number == number)
            return entry.device;
    for (const Family &family : kFamilies)
        if (mReplacement.isEmpty() && number >= family.base)
            return mDeviceFolder + QLatin1Char('/') + QLatin1String(family.prefix) +
                   QString::number(number - family.base);
    return std::nullopt;
}

SerialPortEntry SerialPorts::EntryOf(const QString &device) const {
    for (const SerialPortEntry &entry : List())
        if (entry.device == device)
            return entry;
    return {.number = 0, .device = device, .name = {}};
}

bool SerialPorts::IsComPortAvailable(int number) const {
    const std::optional<QString> device = DeviceOf(QString::number(number));
    return device && PortAccess::probe(*device) == PortState::Available;
}
