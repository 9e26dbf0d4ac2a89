#pragma once

// SIGTERM, SIGINT and SIGHUP as a descriptor that becomes readable, so that a loop ends in an orderly way.
class StopSignals {
  public:
    StopSignals();
    ~StopSignals();
    StopSignals(const StopSignals &) = delete;
    StopSignals &operator=(const StopSignals &) = delete;

    [[nodiscard]] int descriptor() const { return mDescriptor; }

  private:
    int mDescriptor;
};
