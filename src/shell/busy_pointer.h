#pragma once

#include <QtGlobal>

// The hourglass, nested by a count. One override cursor stands while the count is above 0.
class BusyPointer {
  public:
    BusyPointer() = default;
    ~BusyPointer();
    BusyPointer(const BusyPointer &) = delete;
    BusyPointer &operator=(const BusyPointer &) = delete;

    void MouseHourglass();
    // An extra call is harmless.
    void MouseDefault();
    [[nodiscard]] qint32 MouseBusyCount() const { return mMouseBusyCount; }

  private:
    qint32 mMouseBusyCount = 0;
};

// The hourglass for a scope.
class HourglassGuard {
  public:
    explicit HourglassGuard(BusyPointer &pointer) : mPointer(pointer) { mPointer.MouseHourglass(); }
    ~HourglassGuard() { mPointer.MouseDefault(); }
    HourglassGuard(const HourglassGuard &) = delete;
    HourglassGuard &operator=(const HourglassGuard &) = delete;

  private:
    BusyPointer &mPointer;
};

// The arrow for a scope, if the hourglass shows; for a box that is shown during a long operation.
class ArrowGuard {
  public:
    explicit ArrowGuard(const BusyPointer &pointer);
    ~ArrowGuard();
    ArrowGuard(const ArrowGuard &) = delete;
    ArrowGuard &operator=(const ArrowGuard &) = delete;

  private:
    bool mPushed;
};
