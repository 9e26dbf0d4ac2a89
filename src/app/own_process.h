#pragma once

#include "shell_ports.h"

#include <QThread>

#include <cstdlib>

// The program's own process.
class OwnProcess final : public ProcessControl {
  public:
    void EndNow(int exitCode) override { std::_Exit(exitCode); }
    void Pause(int milliseconds) override { QThread::msleep(static_cast<unsigned long>(milliseconds)); }
};
