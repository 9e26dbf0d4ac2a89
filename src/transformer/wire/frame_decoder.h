#pragma once

#include "wire_frame.h"

#include <optional>

// Finds frames in a stream of bytes that arrives in pieces of any size. Bytes that belong to no whole frame are
// skipped; after a broken frame the search goes on right behind its start marker, so that a false start in garbage
// does not cost the frame behind it. Never holds more than one frame's length plus what one call of feed() brings.
class FrameDecoder {
  public:
    void feed(QByteArrayView bytes);
    // The next whole frame with a right CRC; nothing if more bytes are needed.
    [[nodiscard]] std::optional<WireFrame> next();
    // For a silence on the line in the middle of a frame: the rest of it will not come. Gives up the started frame and
    // makes next() search what arrived behind its start marker.
    void abandonPartial();
    // Forgets every byte held.
    void clear();

    // Since construction: bytes outside frames, and frames whose length was out of range or whose CRC was wrong.
    [[nodiscard]] qint64 skippedBytes() const { return mSkipped; }
    [[nodiscard]] qint64 brokenFrames() const { return mBroken; }
    // Frames among them that had a whole header: their CRC was wrong, or their rest did not come.
    [[nodiscard]] qint64 damagedFrames() const { return mDamaged; }
    // Of the last one of those; as doubtful as the rest of that frame.
    [[nodiscard]] quint8 damagedSequence() const { return mDamagedSequence; }
    [[nodiscard]] bool inFrame() const { return !mBuffer.isEmpty(); }

  private:
    enum class Step { NeedMore, Skipped, Found };

    Step step(WireFrame &frame);
    void noteDamage();
    void skip(qsizetype count);
    void skipToStart();

    QByteArray mBuffer;
    qint64 mSkipped = 0;
    qint64 mBroken = 0;
    qint64 mDamaged = 0;
    quint8 mDamagedSequence = 0;
};
