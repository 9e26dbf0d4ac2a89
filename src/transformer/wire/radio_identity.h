#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

// What a radio says about itself. Tier, band and serial number are facts of the radio: no command writes them.
struct RadioIdentity {
    quint8 tier = 0;          // place of the tier in the field dictionary, from 0
    quint8 band = 0;          // number of the frequency band, as the field dictionary numbers them
    quint8 databaseLevel = 0; // version level of its data base, from 1
    quint16 layout = 0;       // number of its memory map
    quint16 maxBlock = 0;     // greatest block in bytes, 64 to 4096
    quint32 serialNumber = 0; // 0 to 99999999
    quint32 imageSize = 0;    // bytes of one memory bank
    bool highSpeed = false;   // can step up to 115200 bit/s
    quint8 hardwareRevision = 0;
    quint8 softwareMajor = 0;
    quint8 softwareMinor = 0;
    quint16 softwareRevision = 0;
    QString productCode; // up to 12 ASCII characters

    bool operator==(const RadioIdentity &) const = default;

    [[nodiscard]] QString serialText() const;   // eight digits
    [[nodiscard]] QString softwareText() const; // "2.01.0007"
    [[nodiscard]] QByteArray encode() const;
    // Nothing for a record of another version, another length or with a value out of range.
    [[nodiscard]] static std::optional<RadioIdentity> decode(const QByteArray &record);
};
