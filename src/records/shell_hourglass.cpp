#include "shell_hourglass.h"

#include "transformer_events.h"
#include "window_services.h"

ShellHourglass::ShellHourglass(FormShell &shell) : mWindow(dynamic_cast<TransformerEvents *>(&shell)) {
    if (mWindow != nullptr)
        mWindow->TransformerEvents_MouseHourglass();
}

ShellHourglass::~ShellHourglass() {
    if (mWindow != nullptr)
        mWindow->TransformerEvents_MouseDefault();
}
