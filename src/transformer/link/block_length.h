#pragma once

#include "wire_frame.h"

// How many bytes the next block is to have: halves after a failure, doubles after a run of successes, 64 to the
// radio's greatest block.
class BlockLength {
  public:
    explicit BlockLength(int greatest) : mGreatest(greatest), mBytes(greatest) {}

    [[nodiscard]] int bytes() const { return mBytes; }
    void succeeded();
    // silent: nothing at all was heard.
    void failed(bool silent);
    // True after so many failures without a success between them, or so many silent ones in a row, that the line
    // counts as unusable.
    [[nodiscard]] bool hopeless() const { return mFailures >= kMostFailures || mSilences >= kMostSilences; }

  private:
    static constexpr int kMostFailures = 16;
    static constexpr int kMostSilences = 5;
    static constexpr int kSuccessesToGrow = 8;

    int mGreatest;
    int mBytes;
    int mFailures = 0;
    int mSilences = 0;
    int mSuccesses = 0;
};
