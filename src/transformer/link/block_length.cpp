#include "block_length.h"

#include <algorithm>

void BlockLength::succeeded() {
    mFailures = 0;
    mSilences = 0;
    if (++mSuccesses < kSuccessesToGrow)
        return;
    mSuccesses = 0;
    mBytes = std::min(mBytes * 2, mGreatest);
}

void BlockLength::failed(bool silent) {
    ++mFailures;
    mSilences = silent ? mSilences + 1 : 0;
    mSuccesses = 0;
    mBytes = std::max(mBytes / 2, Wire::kMinBlock);
}
