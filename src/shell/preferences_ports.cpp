#include "preferences_ports.h"

#include "serial_ports.h"
#include "translation.h"

namespace {
QString tipOf(const SerialPortEntry &entry) {
    return entry.name.isEmpty() ? entry.device : entry.name + QStringLiteral(" (") + entry.device + u')';
}
} // namespace

std::vector<PreferencesPort> PreferencesPorts::list(const SerialPorts &ports, const Translation &translation,
                                                    int storedNumber) {
    std::vector<PreferencesPort> result;
    for (const SerialPortEntry &entry : ports.List()) {
        QString text = QStringLiteral("COM%1:").arg(entry.number);
        if (entry.number != storedNumber && !ports.IsComPortAvailable(entry.number))
            text = translation.NLSFmt(QStringLiteral("%0:S (unavailable)"), text);
        result.push_back({entry.number, text, tipOf(entry), entry.device, entry.name});
    }
    return result;
}
