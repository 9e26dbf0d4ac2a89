#pragma once

class EditCommands;
class MainMenu;
class QWidget;

// The keys of cut, copy and paste in the window. What applies is found out at each press, as when the menu opens. A
// text box takes these keys before the window does.
class EditShortcuts {
  public:
    // window owns the shortcuts; the others outlive it.
    EditShortcuts(QWidget &window, MainMenu &menu, EditCommands &commands);
};
