#pragma once

#include "process_values.h"

// Sets gblnInitialisingFields for a scope and gives it its old value back, so that an inner bracket does not end an
// outer one.
class InitialisingFieldsGuard {
  public:
    explicit InitialisingFieldsGuard(ProcessValues &process)
        : mProcess(process), mOldValue(process.gblnInitialisingFields) {
        process.gblnInitialisingFields = true;
    }
    ~InitialisingFieldsGuard() { mProcess.gblnInitialisingFields = mOldValue; }
    InitialisingFieldsGuard(const InitialisingFieldsGuard &) = delete;
    InitialisingFieldsGuard &operator=(const InitialisingFieldsGuard &) = delete;

  private:
    ProcessValues &mProcess;
    bool mOldValue;
};
