#include "checksums.h"

#include <array>

namespace {
constexpr quint16 kPolynomial16 = 0x1021;
constexpr quint32 kPolynomial32Reflected = 0xEDB88320;

constexpr std::array<quint16, 256> makeTable16() {
    std::array<quint16, 256> table{};
    for (unsigned index = 0; index < 256; ++index) {
        unsigned value = index << 8;
        for (int bit = 0; bit < 8; ++bit)
            value = (value & 0x8000U) ? (value << 1) ^ kPolynomial16 : value << 1;
        table[index] = quint16(value);
    }
    return table;
}

constexpr std::array<quint32, 256> makeTable32() {
    std::array<quint32, 256> table{};
    for (quint32 index = 0; index < 256; ++index) {
        quint32 value = index;
        for (int bit = 0; bit < 8; ++bit)
            value = (value & 1U) ? (value >> 1) ^ kPolynomial32Reflected : value >> 1;
        table[index] = value;
    }
    return table;
}

constexpr auto kTable16 = makeTable16();
constexpr auto kTable32 = makeTable32();
} // namespace

quint16 Checksums::crc16(QByteArrayView data) {
    quint16 crc = 0xFFFF;
    for (const char byte : data)
        crc = quint16(crc << 8) ^ kTable16[quint8(crc >> 8) ^ quint8(byte)];
    return crc;
}

quint32 Checksums::crc32(QByteArrayView data) {
    quint32 crc = 0xFFFFFFFF;
    for (const char byte : data)
        crc = (crc >> 8) ^ kTable32[(crc ^ quint8(byte)) & 0xFFU];
    return ~crc;
}
