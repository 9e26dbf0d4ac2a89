#include "main_error_sink.h"

#include "busy_pointer.h"
#include "message_style.h"
#include "shut_down.h"
#include "window_services.h"

MainErrorSink::MainErrorSink(MessageBoxes &boxes, const BusyPointer &pointer, ShutDown &shutDown)
    : mBoxes(boxes), mPointer(pointer), mShutDown(shutDown) {}

void MainErrorSink::ShowCritical(const QString &text, const QString &title) {
    const ArrowGuard arrow(mPointer);
    mBoxes.MsgBox(text, MessageStyle::kCritical, title);
}

void MainErrorSink::CloseMainWindow() { mShutDown.CloseByCode(); }
