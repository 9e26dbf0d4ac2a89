#pragma once

#include "program_icons.h"

#include <QString>

#include <functional>
#include <vector>

class QAction;
class QToolBar;
class QWidget;
class TranslatedTexts;

// One entry of a tool bar; an empty key is a separator.
struct ToolBarRow {
    const char *key;
    const char *toolTip;
    ProgramIcon icon = ProgramIcon::kNew;
};

// A bar of buttons, counted from 1 with its separators, each with a key. The buttons take no focus, so that a click
// never leaves the active field.
class ShellToolBar {
  public:
    // The bar is made as a child of parent. clicked gets the key of the pressed button.
    ShellToolBar(QWidget *parent, const QString &name, const QString &title, const std::vector<ToolBarRow> &rows,
                 TranslatedTexts &texts, std::function<void(const QString &)> clicked);

    [[nodiscard]] QToolBar &Bar() const { return *mBar; }
    // Both raise error 9 for what is not there.
    [[nodiscard]] QAction &Button(int index) const;
    [[nodiscard]] QAction &Button(const QString &key) const;
    // A drop-down entry of a button. The key goes to clicked as it is.
    void AddButtonMenu(const QString &buttonKey, const QString &key, const QString &caption, TranslatedTexts &texts);

  private:
    QToolBar *mBar;
    std::vector<QAction *> mButtons;
    std::function<void(const QString &)> mClicked;
};

// The rows of tbrStandard and tbrRadio.
namespace ShellToolBars {
[[nodiscard]] const std::vector<ToolBarRow> &standardRows();
[[nodiscard]] const std::vector<ToolBarRow> &radioRows();
} // namespace ShellToolBars
