#pragma once

#include <QString>

class MainMenu;
class ShellToolBar;

// The tool bars' buttons do what menu commands do.
class ToolBarCommands {
  public:
    explicit ToolBarCommands(MainMenu &menu);
    // The key of a button or of a drop-down entry.
    void Run(const QString &key);
    // Disables the buttons whose command does nothing yet.
    void DisableUnconnected(const ShellToolBar &bar) const;
    // "" for an unknown key.
    [[nodiscard]] static QString CommandOf(const QString &key);

  private:
    MainMenu &mMenu;
};
