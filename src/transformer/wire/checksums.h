#pragma once

#include <QByteArrayView>

#include <cstdint>

namespace Checksums {
// CRC-16/IBM-3740 (RevEng catalogue): polynomial 0x1021, start 0xFFFF, not reflected, no final exclusive-or. Of the
// nine bytes "123456789": 0x29B1. Closes each frame.
[[nodiscard]] quint16 crc16(QByteArrayView data);
// CRC-32/ISO-HDLC (RevEng catalogue): polynomial 0x04C11DB7, start 0xFFFFFFFF, reflected, final exclusive-or
// 0xFFFFFFFF. Of "123456789": 0xCBF43926. The checksum of a whole memory bank.
[[nodiscard]] quint32 crc32(QByteArrayView data);
} // namespace Checksums
