#include "splash_front.h"

#include "program_icons.h"
#include "splash.h"

#include <QGuiApplication>

namespace {
constexpr QSize kSize(480, 320);
}

SplashFront::SplashFront() = default;
SplashFront::~SplashFront() = default;

void SplashFront::ShowSplash() {
    mSplash = std::make_unique<frmSplash>(loadPixmap(ProgramIcon::kSplash, kSize, qGuiApp->devicePixelRatio()));
    mSplash->show();
}

void SplashFront::RepaintSplash() {
    if (mSplash != nullptr)
        mSplash->repaint();
}

void SplashFront::UnloadSplash() { mSplash.reset(); }
