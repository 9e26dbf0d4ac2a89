#pragma once

class MainMenu;
class ShellToolBar;

// Which commands of the open form can be given, in the menu and on the tool bar alike.
class CommandStates {
  public:
    CommandStates(MainMenu &menu, ShellToolBar &standardBar);
    // Revert, validate, reject and accept, in this order.
    void EnableFormCommands(bool enabled);
    void EnableNew(bool enabled);
    void EnableRevertToSaved(bool enabled);

  private:
    MainMenu &mMenu;
    ShellToolBar &mStandardBar;
};
