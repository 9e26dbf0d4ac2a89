#pragma once

#include <QString>

#include <array>

class QLabel;
class QStatusBar;

// The seven panels of the status bar, counted from 1. All show plain text; hidden until something is shown.
class StatusPanels {
  public:
    static constexpr int kDatabaseVersion = 1;
    static constexpr int kMin = 2;
    static constexpr int kMax = 3;
    static constexpr int kStep = 4;
    static constexpr int kUnit = 5;
    static constexpr int kLastAction = 6;
    static constexpr int kDrag = 7;

    // statusBar owns the panels.
    explicit StatusPanels(QStatusBar &statusBar);
    void SetText(int panel, const QString &text);
    void SetVisible(int panel, bool visible);
    void Show(int panel, const QString &text);
    [[nodiscard]] QString Text(int panel) const;
    [[nodiscard]] bool Visible(int panel) const;

  private:
    std::array<QLabel *, 7> mPanels{};
};
