#pragma once

#include "col_menu_items.h"

#include <optional>

class QAction;
class QMenuBar;

// Builds menu items into a menu of the menu bar. The actions belong to that menu; the items find theirs by Handle.
class clsMenuBuilder {
  public:
    [[nodiscard]] colMenuItems &MenuItems() { return mItems; }

    // Appends the items to the menu at lngTopPos, or to its submenu at lngSubPos (places from 0). What the builder had
    // built before stays. Raises a bad argument for no menu bar or a place without a menu.
    void BuildMenu(QMenuBar *lHwndOwner, qint32 lngTopPos, std::optional<qint32> lngSubPos = std::nullopt);
    // Takes what was built out of the menus and forgets the items.
    void DeleteDynamicMenu();
    // Makes the menu show Caption, Enabled and Checked of an item that was built.
    void Refresh(const clsMenuItem &item) const;

  private:
    void addItems(colMenuItems &items, QMenu &menu);

    colMenuItems mItems;
    std::vector<QAction *> mActions; // the action of Handle n stands at n - 1
};
