#include "frame_decoder.h"

#include "byte_fields.h"
#include "checksums.h"

namespace {
constexpr int kMarkerSize = 2;
} // namespace

void FrameDecoder::feed(QByteArrayView bytes) { mBuffer.append(bytes.data(), bytes.size()); }

std::optional<WireFrame> FrameDecoder::next() {
    WireFrame frame;
    for (;;) {
        const Step result = step(frame);
        if (result == Step::Found)
            return frame;
        if (result == Step::NeedMore)
            return std::nullopt;
    }
}

FrameDecoder::Step FrameDecoder::step(WireFrame &frame) {
    skipToStart();
    if (mBuffer.size() < Wire::kHeaderSize)
        return Step::NeedMore;
    ByteReader header(mBuffer.mid(kMarkerSize, Wire::kHeaderSize - kMarkerSize));
    const int length = header.u16();
    if (length > Wire::kMaxPayload) {
        ++mBroken;
        skip(kMarkerSize);
        return Step::Skipped;
    }
    const qsizetype whole = Wire::kFrameOverhead + length;
    if (mBuffer.size() < whole)
        return Step::NeedMore;
    const auto covered = QByteArrayView(mBuffer).sliced(kMarkerSize, whole - kMarkerSize - Wire::kCrcSize);
    ByteReader trailer(mBuffer.mid(whole - Wire::kCrcSize, Wire::kCrcSize));
    if (Checksums::crc16(covered) != trailer.u16()) {
        noteDamage();
        skip(kMarkerSize);
        return Step::Skipped;
    }
    frame.sequence = header.u8();
    frame.command = header.u8();
    frame.payload = mBuffer.mid(Wire::kHeaderSize, length);
    mBuffer.remove(0, whole);
    return Step::Found;
}

void FrameDecoder::abandonPartial() {
    if (mBuffer.isEmpty())
        return;
    if (mBuffer.size() >= Wire::kHeaderSize)
        noteDamage();
    else
        ++mBroken;
    skip(1);
}

void FrameDecoder::noteDamage() {
    constexpr qsizetype kSequenceAt = 4;
    ++mBroken;
    ++mDamaged;
    mDamagedSequence = quint8(mBuffer[kSequenceAt]);
}

void FrameDecoder::clear() {
    mSkipped += mBuffer.size();
    mBuffer.clear();
}

void FrameDecoder::skip(qsizetype count) {
    count = qMin(count, mBuffer.size());
    mSkipped += count;
    mBuffer.remove(0, count);
}

void FrameDecoder::skipToStart() {
    const char marker[] = {char(Wire::kStart1), char(Wire::kStart2)};
    qsizetype start = mBuffer.indexOf(QByteArrayView(marker, kMarkerSize));
    if (start < 0) // the marker's first byte may stand last
        start = mBuffer.endsWith(char(Wire::kStart1)) ? mBuffer.size() - 1 : mBuffer.size();
    if (start > 0)
        skip(start);
}
