#pragma once

#include "twips.h"

class ErrorReport;
class QWidget;
class Transformer;

// States of a window as they are stored.
namespace WindowState {
inline constexpr qint32 kNormal = 0;
inline constexpr qint32 kMinimised = 1;
inline constexpr qint32 kMaximised = 2;
} // namespace WindowState

// Where the main window stands, in the settings and on the screen's available area; all lengths in twips.
class WindowPosition {
  public:
    WindowPosition(QWidget &window, Transformer &transformer, ErrorReport &errors);

    // Places the window as the settings say.
    void StartupPosition();
    void SaveState();
    // Gives a maximised or minimised window its normal state back first.
    void SavePosition();

    // startupPosition 0: centred; any other: as saved. Kept on the screen at its right, lower, left and upper edge.
    [[nodiscard]] static TwipRect Placed(const TwipRect &saved, qint32 startupPosition, const TwipSize &screen);

  private:
    [[nodiscard]] TwipRect present() const;

    QWidget &mWindow;
    Transformer &mTransformer;
    ErrorReport &mErrors;
};
