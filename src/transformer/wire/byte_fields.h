#pragma once

#include <QByteArray>

#include <cstdint>

// Whole numbers in a payload: most significant byte first.
class ByteWriter {
  public:
    ByteWriter &u8(quint8 value);
    ByteWriter &u16(quint16 value);
    ByteWriter &u32(quint32 value);
    ByteWriter &bytes(const QByteArray &value);
    // Cut or filled with zero bytes to width.
    ByteWriter &text(const QByteArray &value, int width);
    [[nodiscard]] const QByteArray &data() const { return mData; }

  private:
    QByteArray mData;
};

// Reads what ByteWriter wrote. Reading behind the end gives 0 and spoils the reader for good, so that one test of
// complete() at the end decides.
class ByteReader {
  public:
    explicit ByteReader(const QByteArray &data);

    quint8 u8();
    quint16 u16();
    quint32 u32();
    // Up to the first zero byte of the next width bytes.
    QByteArray text(int width);
    QByteArray rest();
    // True if every read lay inside and nothing is left over.
    [[nodiscard]] bool complete() const;

  private:
    quint32 number(int width);

    const QByteArray mData;
    qsizetype mPosition = 0;
    bool mSpoilt = false;
};
