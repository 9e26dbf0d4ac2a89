#include "window_position.h"

#include "common_error_handler.h"
#include "pending_events.h"
#include "setting.h"
#include "transformer.h"
#include "value_text.h"

#include <QScreen>
#include <QWidget>
#include <QWindow>

#include <algorithm>

namespace {
const QString kLeft = QStringLiteral("LeftPosition");
const QString kTop = QStringLiteral("TopPosition");
const QString kWidth = QStringLiteral("WidthPosition");
const QString kHeight = QStringLiteral("HeightPosition");
const QString kState = QStringLiteral("WindowState");

qint32 stateOf(const QWidget &window) {
    if (window.isMinimized())
        return WindowState::kMinimised;
    return window.isMaximized() ? WindowState::kMaximised : WindowState::kNormal;
}

// The stored number may have decimals.
Twips stored(Transformer &transformer, const QString &key, Twips fallback) {
    return Twips{Setting::integer(transformer, key, fallback.count)};
}
} // namespace

WindowPosition::WindowPosition(QWidget &window, Transformer &transformer, ErrorReport &errors)
    : mWindow(window), mTransformer(transformer), mErrors(errors) {}

TwipRect WindowPosition::Placed(const TwipRect &saved, qint32 startupPosition, const TwipSize &screen) {
    TwipRect place = saved;
    if (startupPosition == 0) {
        place.left = Twips{screen.width.count / 2 - saved.width.count / 2};
        place.top = Twips{screen.height.count / 2 - saved.height.count / 2};
    }
    if (place.left > screen.width)
        place.left = screen.width - saved.width;
    if (place.top > screen.height)
        place.top = screen.height - saved.height;
    place.left = std::max(place.left, Twips{0});
    place.top = std::max(place.top, Twips{0});
    return place;
}

// Of the window with its frame's corner, so that a window saved and placed again does not creep.
TwipRect WindowPosition::present() const {
    const TwipScale scale = TwipScale::of(mWindow);
    const QPoint frame = mWindow.geometry().topLeft() - mWindow.frameGeometry().topLeft();
    const QRect normal = mWindow.normalGeometry().isValid() ? mWindow.normalGeometry() : mWindow.geometry();
    const QPoint corner = normal.topLeft() - frame - mWindow.screen()->availableGeometry().topLeft();
    const auto twips = [&scale](int pixels) { return scale.ofMeasure(Pixels{pixels}); };
    return {twips(corner.x()), twips(corner.y()), twips(normal.width()), twips(normal.height())};
}

void WindowPosition::StartupPosition() try {
    const qint32 state = Setting::integer(mTransformer, kState, WindowState::kNormal);
    const TwipRect now = present();
    const TwipRect saved{stored(mTransformer, kLeft, now.left), stored(mTransformer, kTop, now.top),
                         stored(mTransformer, kWidth, now.width), stored(mTransformer, kHeight, now.height)};
    const qint32 startupPosition = Setting::integer(mTransformer, QStringLiteral("StartupPosition"), 0);
    const TwipScale scale = TwipScale::of(mWindow);
    const QRect available = mWindow.screen()->availableGeometry();
    const TwipSize screen{scale.ofMeasure(Pixels{available.width()}), scale.ofMeasure(Pixels{available.height()})};
    const QRect place = scale.toPixels(Placed(saved, startupPosition, screen));
    mWindow.resize(place.size());
    mWindow.move(available.topLeft() + place.topLeft());
    // Before the window shows, move() takes the place as that of the contents; it is that of the frame.
    if (mWindow.windowHandle() != nullptr)
        mWindow.windowHandle()->setFramePosition(available.topLeft() + place.topLeft());
    if (startupPosition == 1 || state == WindowState::kMaximised)
        mWindow.setWindowState(Qt::WindowMaximized);
    else if (state == WindowState::kMinimised)
        mWindow.setWindowState(Qt::WindowMinimized);
}
ERROR_TAIL()

void WindowPosition::SaveState() { mTransformer.SaveSetting(kState, stateOf(mWindow)); }

void WindowPosition::SavePosition() {
    if (stateOf(mWindow) != WindowState::kNormal) {
        mWindow.showNormal();
        letPendingEventsRun();
    }
    const TwipRect place = present();
    mTransformer.SaveSetting(kLeft, place.left.count);
    mTransformer.SaveSetting(kTop, place.top.count);
    mTransformer.SaveSetting(kWidth, place.width.count);
    mTransformer.SaveSetting(kHeight, place.height.count);
}
