#pragma once

#include <QHash>
#include <QString>

#include <functional>

class QAction;
class QMenu;
class QMenuBar;
class TranslatedTexts;

// The menu bar. Commands and menus are found by their names ("mnuSave", "mnuFile"), which are their object names too.
class MainMenu {
  public:
    // menuBar owns everything. Every command is disabled until it has been connected.
    MainMenu(QMenuBar &menuBar, TranslatedTexts &texts);

    // Both raise error 9 for an unknown name.
    [[nodiscard]] QAction &Action(const QString &name) const;
    [[nodiscard]] QMenu &Menu(const QString &name) const;
    // What a command does; it is enabled from then on. A command without one stays disabled.
    void Connect(const QString &name, const std::function<void()> &command);
    [[nodiscard]] bool Connected(const QString &name) const { return mCommands.contains(name); }
    // As if the command were chosen; nothing if it does nothing or is disabled.
    void Run(const QString &name);
    void SetEnabled(const QString &name, bool enabled);
    // A command or a whole menu.
    void SetVisible(const QString &name, bool visible);

  private:
    QHash<QString, QAction *> mActions;
    QHash<QString, QMenu *> mMenus;
    QHash<QString, std::function<void()>> mCommands;
};
