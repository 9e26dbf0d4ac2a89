#pragma once

#include <QtGlobal>

// The commands that a grid is running, a bit each. A command that comes in while one runs is ignored.
class BusyFlags {
  public:
    static constexpr qint16 kAdd = 1;
    static constexpr qint16 kDelete = 2;
    static constexpr qint16 kRepeat = 4;
    static constexpr qint16 kInsert = 8;

    [[nodiscard]] bool idle() const { return mBits == 0; }
    void begin(qint16 command) { mBits = command; }
    void end(qint16 command) { mBits = qint16(mBits & ~command); }
    [[nodiscard]] qint16 bits() const { return mBits; }

  private:
    qint16 mBits = 0;
};
