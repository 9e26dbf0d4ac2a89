#pragma once

#include <QString>

#include <vector>

class SerialPorts;
class Translation;

// The machine's serial ports as the preferences offer them.
struct PreferencesPort {
    int number = 0;
    QString text; // "COM1:", translated "COM1: (unavailable)"
    QString tip;  // the device, with its name where it has one
    QString device;
    QString name; // may be empty
};

namespace PreferencesPorts {
// By ascending number. Every port but the stored one is tried; one that cannot be opened is marked.
[[nodiscard]] std::vector<PreferencesPort> list(const SerialPorts &ports, const Translation &translation,
                                                int storedNumber);
} // namespace PreferencesPorts
