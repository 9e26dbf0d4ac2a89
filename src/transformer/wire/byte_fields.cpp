#include "byte_fields.h"

ByteWriter &ByteWriter::u8(quint8 value) {
    mData.append(char(value));
    return *this;
}

ByteWriter &ByteWriter::u16(quint16 value) { return u8(quint8(value >> 8)).u8(quint8(value & 0xFF)); }

ByteWriter &ByteWriter::u32(quint32 value) { return u16(quint16(value >> 16)).u16(quint16(value & 0xFFFF)); }

ByteWriter &ByteWriter::bytes(const QByteArray &value) {
    mData.append(value);
    return *this;
}

ByteWriter &ByteWriter::text(const QByteArray &value, int width) {
    mData.append(value.left(width).leftJustified(width, '\0'));
    return *this;
}

ByteReader::ByteReader(const QByteArray &data) : mData(data) {}

quint8 ByteReader::u8() { return quint8(number(1)); }

quint16 ByteReader::u16() { return quint16(number(2)); }

quint32 ByteReader::u32() { return number(4); }

quint32 ByteReader::number(int width) {
    if (mData.size() - mPosition < width) {
        mSpoilt = true;
        return 0;
    }
    quint32 value = 0;
    for (int i = 0; i < width; ++i)
        value = (value << 8) | quint8(mData[mPosition++]);
    return value;
}

QByteArray ByteReader::text(int width) {
    if (mData.size() - mPosition < width) {
        mSpoilt = true;
        return {};
    }
    const QByteArray field = mData.mid(mPosition, width);
    mPosition += width;
    const qsizetype end = field.indexOf('\0');
    return end < 0 ? field : field.left(end);
}

QByteArray ByteReader::rest() {
    QByteArray tail = mData.mid(mPosition);
    mPosition = mData.size();
    return tail;
}

bool ByteReader::complete() const { return !mSpoilt && mPosition == mData.size(); }
