#pragma once

#include "shell_ports.h"

#include <memory>

class frmSplash;

// The splash window, which exists only while it shows.
class SplashFront final : public SplashWindow {
  public:
    SplashFront();
    ~SplashFront() override;
    SplashFront(const SplashFront &) = delete;
    SplashFront &operator=(const SplashFront &) = delete;

    void ShowSplash() override;
    void RepaintSplash() override;
    void UnloadSplash() override;

  private:
    std::unique_ptr<frmSplash> mSplash;
};
