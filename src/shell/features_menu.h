#pragma once

#include "cls_menu_builder.h"

class ErrorReport;
class QMenuBar;
class Translation;
struct FormLists;

// The menu of the forms by their categories. It is built on request only; a click on one of its entries opens nothing.
class FeaturesMenu {
  public:
    // The features menu stands at kTopPosition of the bar.
    FeaturesMenu(QMenuBar &menuBar, const Translation &translation, ErrorReport &errors);

    static constexpr qint32 kTopPosition = 3;

    // A submenu for each type of form, with the top-level forms and below each its children.
    void BuildFeaturesMenu(const FormLists &lists);
    void DeleteDynamicMenu();
    // By the shown caption; an absent entry is ignored.
    void EnableDynamicMenuItem(const QString &name, bool Enable);
    // In items and all below them; null if there is none.
    [[nodiscard]] static clsMenuItem *FindMenuItemByCaption(const colMenuItems &items, const QString &caption);
    [[nodiscard]] static clsMenuItem *FindMenuItemByCtrlId(const colMenuItems &items, qint32 id);
    [[nodiscard]] const colMenuItems &Items() { return mBuilder.MenuItems(); }

  private:
    QMenuBar &mMenuBar;
    const Translation &mTranslation;
    ErrorReport &mErrors;
    clsMenuBuilder mBuilder;
};
