#pragma once

#include "block_length.h"
#include "radio_progress.h"
#include "radio_session.h"

// Moves whole memory banks in blocks whose length follows the line's quality. Throws LinkFailure when the line is not
// usable.
class ImageTransfer {
  public:
    ImageTransfer(RadioSession &session, int greatestBlock, RadioProgress *progress); // neither is owned

    // total: bytes that the transfers of this phase move.
    void startPhase(RadioPhase phase, qint64 total);
    [[nodiscard]] QByteArray read(Wire::Bank bank, quint32 size, const QString &item);
    // To the second bank.
    void write(const QByteArray &image, const QString &item);

  private:
    void told(int bytes, const QString &item);
    void failed();

    RadioSession &mSession;
    BlockLength mLength;
    RadioProgress *mProgress;
    qint64 mTotal = 0;
    qint64 mDone = 0;
};
