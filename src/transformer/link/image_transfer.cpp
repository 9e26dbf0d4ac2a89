#include "image_transfer.h"

#include <algorithm>

ImageTransfer::ImageTransfer(RadioSession &session, int greatestBlock, RadioProgress *progress)
    : mSession(session), mLength(greatestBlock), mProgress(progress) {}

void ImageTransfer::startPhase(RadioPhase phase, qint64 total) {
    mTotal = total;
    mDone = 0;
    if (mProgress != nullptr)
        mProgress->phaseStarted(phase, qint32(total));
}

QByteArray ImageTransfer::read(Wire::Bank bank, quint32 size, const QString &item) {
    QByteArray image;
    image.reserve(qsizetype(size));
    while (image.size() < qsizetype(size)) {
        const int length = int(std::min<qsizetype>(mLength.bytes(), qsizetype(size) - image.size()));
        const std::optional<QByteArray> block = mSession.readBlock(bank, quint32(image.size()), length);
        if (!block) {
            failed();
            continue;
        }
        image += *block;
        told(length, item);
    }
    return image;
}

void ImageTransfer::write(const QByteArray &image, const QString &item) {
    qsizetype offset = 0;
    while (offset < image.size()) {
        const QByteArray block = image.mid(offset, mLength.bytes());
        if (!mSession.writeBlock(quint32(offset), block)) {
            failed();
            continue;
        }
        offset += block.size();
        told(int(block.size()), item);
    }
}

void ImageTransfer::told(int bytes, const QString &item) {
    mLength.succeeded();
    mDone += bytes;
    if (mProgress != nullptr && mTotal > 0)
        mProgress->advanced(bytes, item, QStringLiteral("%1 %").arg(100 * mDone / mTotal));
}

void ImageTransfer::failed() {
    mLength.failed(!mSession.heardLast());
    if (mLength.hopeless())
        mSession.giveUp();
}
