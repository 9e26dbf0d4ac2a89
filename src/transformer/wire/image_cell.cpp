#include "image_cell.h"

#include <QString>

namespace {
constexpr int kBitsInByte = 8;
} // namespace

bool ImageCell::putNumber(QByteArray &image, qsizetype at, int width, qint64 value) {
    const qint64 range = qint64(1) << (kBitsInByte * width);
    if (value >= range || value < -range / 2)
        return false;
    for (int i = 0; i < width; ++i)
        image[at + i] = char((value >> (kBitsInByte * i)) & 0xFF);
    return true;
}

qint64 ImageCell::unsignedNumber(const QByteArray &image, qsizetype at, int width) {
    qint64 value = 0;
    for (int i = width - 1; i >= 0; --i)
        value = (value << kBitsInByte) | quint8(image[at + i]);
    return value;
}

qint64 ImageCell::signedNumber(const QByteArray &image, qsizetype at, int width) {
    const qint64 range = qint64(1) << (kBitsInByte * width);
    const qint64 value = unsignedNumber(image, at, width);
    return value >= range / 2 ? value - range : value;
}

bool ImageCell::putText(QByteArray &image, qsizetype at, int width, const QString &text) {
    const QByteArray bytes = text.toLatin1();
    if (bytes.size() > width || bytes.contains('\0') || QString::fromLatin1(bytes) != text)
        return false;
    image.replace(at, width, bytes.leftJustified(width, '\0'));
    return true;
}

QString ImageCell::text(const QByteArray &image, qsizetype at, int width) {
    const QByteArray field = image.mid(at, width);
    const qsizetype end = field.indexOf('\0');
    return QString::fromLatin1(end < 0 ? field : field.left(end));
}

bool ImageCell::isCleanText(const QByteArray &image, qsizetype at, int width) {
    const QByteArray field = image.mid(at, width);
    const qsizetype end = field.indexOf('\0');
    return end < 0 || field.count('\0') == field.size() - end;
}

void ImageCell::putBit(QByteArray &image, qsizetype at, int bit, bool value) {
    const auto mask = quint8(1U << bit);
    const auto present = quint8(image[at]);
    image[at] = char(value ? present | mask : present & quint8(~mask));
}

bool ImageCell::bit(const QByteArray &image, qsizetype at, int bit) { return ((quint8(image[at]) >> bit) & 1U) != 0; }
