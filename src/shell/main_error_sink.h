#pragma once

#include "common_error_handler.h"

class BusyPointer;
class MessageBoxes;
class ShutDown;

// The report of an unexpected error: one critical box, then all windows close.
class MainErrorSink final : public ErrorSink {
  public:
    MainErrorSink(MessageBoxes &boxes, const BusyPointer &pointer, ShutDown &shutDown);
    void ShowCritical(const QString &text, const QString &title) override;
    void CloseMainWindow() override;

  private:
    MessageBoxes &mBoxes;
    const BusyPointer &mPointer;
    ShutDown &mShutDown;
};
