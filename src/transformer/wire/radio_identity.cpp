#include "radio_identity.h"

#include "byte_fields.h"
#include "wire_frame.h"

namespace {
constexpr quint8 kRecordVersion = 1;
constexpr quint8 kFlagHighSpeed = 0x01;
constexpr int kProductCodeWidth = 12;
constexpr quint32 kMaxSerial = 99999999;
} // namespace

QString RadioIdentity::serialText() const { return QStringLiteral("%1").arg(serialNumber, 8, 10, QLatin1Char('0')); }

QString RadioIdentity::softwareText() const {
    return QStringLiteral("%1.%2.%3")
        .arg(softwareMajor)
        .arg(softwareMinor, 2, 10, QLatin1Char('0'))
        .arg(softwareRevision, 4, 10, QLatin1Char('0'));
}

QByteArray RadioIdentity::encode() const {
    ByteWriter writer;
    writer.u8(kRecordVersion).u8(tier).u8(band).u8(databaseLevel).u16(layout).u16(maxBlock);
    writer.u32(serialNumber).u32(imageSize).u8(highSpeed ? kFlagHighSpeed : 0).u8(hardwareRevision);
    writer.u8(softwareMajor).u8(softwareMinor).u16(softwareRevision).text(productCode.toLatin1(), kProductCodeWidth);
    return writer.data();
}

std::optional<RadioIdentity> RadioIdentity::decode(const QByteArray &record) {
    ByteReader reader(record);
    if (reader.u8() != kRecordVersion)
        return std::nullopt;
    RadioIdentity identity;
    identity.tier = reader.u8();
    identity.band = reader.u8();
    identity.databaseLevel = reader.u8();
    identity.layout = reader.u16();
    identity.maxBlock = reader.u16();
    identity.serialNumber = reader.u32();
    identity.imageSize = reader.u32();
    identity.highSpeed = (reader.u8() & kFlagHighSpeed) != 0;
    identity.hardwareRevision = reader.u8();
    identity.softwareMajor = reader.u8();
    identity.softwareMinor = reader.u8();
    identity.softwareRevision = reader.u16();
    identity.productCode = QString::fromLatin1(reader.text(kProductCodeWidth));
    const bool inRange = identity.serialNumber <= kMaxSerial && identity.maxBlock >= Wire::kMinBlock &&
                         identity.maxBlock <= Wire::kMaxBlock && identity.imageSize <= Wire::kMaxImage;
    if (!reader.complete() || !inRange)
        return std::nullopt;
    return identity;
}
