#include "radio_memory.h"

#include "byte_fields.h"

#include <QSaveFile>

namespace {
constexpr int kHeaderSize = 32;
constexpr int kActiveAt = 16;
const QByteArray kMagic("KX46BANK");
} // namespace

RadioMemory::RadioMemory(quint16 layout, quint8 tier, const QByteArray &fresh)
    : mLayout(layout), mTier(tier), mBanks{fresh, QByteArray(fresh.size(), '\0')} {}

QByteArray RadioMemory::header() const {
    ByteWriter writer;
    writer.bytes(kMagic).u16(mLayout).u8(mTier).u8(0).u32(size());
    return writer.u8(quint8(mActive)).data().leftJustified(kHeaderSize, '\0');
}

QString RadioMemory::attach(const QString &path) {
    if (!QFile::exists(path)) {
        QString problem = create(path);
        if (!problem.isEmpty())
            return problem;
    }
    mFile.setFileName(path);
    if (!mFile.open(QIODevice::ReadWrite | QIODevice::Unbuffered))
        return mFile.errorString();
    const QByteArray content = mFile.readAll();
    QByteArray expected = header();
    if (content.size() != kHeaderSize + 2 * qsizetype(size()))
        return QStringLiteral("the image file belongs to a radio of another memory size");
    expected[kActiveAt] = content[kActiveAt];
    if (content.left(kHeaderSize) != expected || quint8(content[kActiveAt]) > 1)
        return QStringLiteral("the image file belongs to a radio of another tier or memory map");
    mActive = quint8(content[kActiveAt]);
    mBanks[0] = content.mid(kHeaderSize, size());
    mBanks[1] = content.mid(kHeaderSize + qsizetype(size()));
    return {};
}

QString RadioMemory::create(const QString &path) {
    QSaveFile file(path);
    const QByteArray content = header() + mBanks[0] + mBanks[1];
    const bool written = file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.flush();
    return written && file.commit() ? QString() : file.errorString();
}

bool RadioMemory::writeSecond(quint32 offset, const QByteArray &data) {
    if (quint64(offset) + quint64(data.size()) > size())
        return false;
    const int bank = 1 - mActive;
    if (!store(kHeaderSize + qint64(bank) * size() + offset, data))
        return false;
    mBanks[bank].replace(qsizetype(offset), data.size(), data);
    return true;
}

bool RadioMemory::switchBanks() {
    const int next = 1 - mActive;
    if (!store(kActiveAt, QByteArray(1, char(next))))
        return false;
    mActive = next;
    return true;
}

bool RadioMemory::store(qint64 at, const QByteArray &data) {
    return !mFile.isOpen() || (mFile.seek(at) && mFile.write(data) == data.size());
}
