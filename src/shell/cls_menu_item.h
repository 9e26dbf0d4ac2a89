#pragma once

#include <QString>
#include <QtGlobal>

#include <memory>

class colMenuItems;

// One entry of the menu that is built at run time.
class clsMenuItem {
  public:
    clsMenuItem();
    ~clsMenuItem();
    Q_DISABLE_COPY_MOVE(clsMenuItem)

    // Owned by the item; empty for an entry that opens nothing further.
    [[nodiscard]] colMenuItems &SubItems() const { return *mSubItems; }

    QString Caption;
    // Number of the command; 0 until the menu has been built.
    qint32 Handle = 0;
    // Place in its menu, from 0.
    qint32 Position = 0;
    QString Category;
    // The form's control name.
    QString FormUsrCtl;
    bool Enabled = true;
    bool Checked = false;

  private:
    std::unique_ptr<colMenuItems> mSubItems;
};
