#include "main_menu.h"

#include "program_icons.h"
#include "run_time_error.h"
#include "translated_texts.h"

#include <QAction>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>

#include <array>
#include <optional>

namespace {
// Top-level menus have no parent; an entry without a caption is a separator.
struct MenuRow {
    const char *name;
    const char *parent;
    const char *caption;
};
constexpr std::array kMenus{
    MenuRow{"mnuFile", "", "&File"},
    MenuRow{"mnuEdit", "", "&Edit"},
    MenuRow{"mnuModel", "", "&Model"},
    MenuRow{"mnuFeature", "", "Fea&tures"},
    MenuRow{"mnuRadio", "", "&Radio"},
    MenuRow{"mnuForm", "", "F&orm"},
    MenuRow{"mnuOptionsMenu", "", "&Options"},
    MenuRow{"mnuHelp", "", "&Help"},
    MenuRow{"mnuRecentFiles", "mnuFile", "Recent &Files"},
    MenuRow{"mnuAccessLevelOption", "mnuOptionsMenu", "&Access Level"},
};

struct CommandRow {
    const char *name;
    const char *menu;
    const char *caption;
    const char *shortcut;
    std::optional<ProgramIcon> icon = std::nullopt;
};
constexpr std::array kCommands{
    CommandRow{"mnuNew", "mnuFile", "&New", "Ctrl+N", ProgramIcon::kNew},
    CommandRow{"mnuOpen", "mnuFile", "&Open...", "Ctrl+O", ProgramIcon::kOpen},
    CommandRow{"mnuSave", "mnuFile", "&Save", "Ctrl+S", ProgramIcon::kSave},
    CommandRow{"mnuSaveAs", "mnuFile", "Save &As...", "Ctrl+Shift+S"},
    CommandRow{"mnuSquirt", "mnuFile", "S&quirt...", ""},
    CommandRow{"mnuRevertToSaved", "mnuFile", "Re&vert to Saved", ""},
    CommandRow{"mnuDatabase", "mnuFile", "&Database...", ""},
    CommandRow{"", "mnuFile", "", ""},
    CommandRow{"mnuPrint", "mnuFile", "&Print...", "Ctrl+P", ProgramIcon::kPrint},
    CommandRow{"mnuPrinterSettings", "mnuFile", "Printer Se&ttings...", ""},
    CommandRow{"", "mnuFile", "", ""},
    CommandRow{"mnuRecentFiles", "mnuFile", "", ""},
    CommandRow{"", "mnuFile", "", ""},
    CommandRow{"mnuExit", "mnuFile", "E&xit", "Ctrl+Q"},
    CommandRow{"mnuUndo", "mnuEdit", "&Undo", ""},
    CommandRow{"", "mnuEdit", "", ""},
    CommandRow{"mnuCut", "mnuEdit", "Cu&t", ""},
    CommandRow{"mnuCopy", "mnuEdit", "&Copy", ""},
    CommandRow{"mnuPaste", "mnuEdit", "&Paste", ""},
    CommandRow{"mnuDelete", "mnuEdit", "&Delete", ""},
    CommandRow{"mnuSelectAll", "mnuEdit", "Select &All", ""},
    CommandRow{"", "mnuEdit", "", ""},
    CommandRow{"mnuFindField", "mnuEdit", "&Find Field...", ""},
    CommandRow{"mnuReadRadio", "mnuRadio", "&Read", "", ProgramIcon::kRead},
    CommandRow{"mnuProgramRadio", "mnuRadio", "&Program", "", ProgramIcon::kProgram},
    CommandRow{"mnuProgramAs", "mnuRadio", "Program &As...", ""},
    CommandRow{"mnuInterrogateRadio", "mnuRadio", "&Interrogate", "", ProgramIcon::kInterrogate},
    CommandRow{"", "mnuRadio", "", ""},
    CommandRow{"mnuDownload", "mnuRadio", "&Download...", ""},
    CommandRow{"mnuValidateForm", "mnuForm", "&Validate", "", ProgramIcon::kValidate},
    CommandRow{"mnuRevertForm", "mnuForm", "&Revert", "", ProgramIcon::kRevert},
    CommandRow{"mnuAccept", "mnuForm", "&Accept", "", ProgramIcon::kAccept},
    CommandRow{"mnuReject", "mnuForm", "Re&ject", "", ProgramIcon::kReject},
    CommandRow{"mnuAccessLevelOption", "mnuOptionsMenu", "", ""},
    CommandRow{"mnuOptions", "mnuOptionsMenu", "&Preferences...", ""},
    CommandRow{"mnuMappingsGen", "mnuOptionsMenu", "&Mapping Scripts...", ""},
    CommandRow{"mnuContents", "mnuHelp", "&Contents", "", ProgramIcon::kHelp},
    CommandRow{"mnuWhatsThisHelp", "mnuHelp", "&What's This?", "", ProgramIcon::kWhatsThis},
    CommandRow{"", "mnuHelp", "", ""},
    CommandRow{"mnuMobilesSupport", "mnuHelp", "&Support", ""},
    CommandRow{"mnuHomePage", "mnuHelp", "&Home Page", ""},
    CommandRow{"", "mnuHelp", "", ""},
    CommandRow{"mnuAbout", "mnuHelp", "&About", ""},
};

QString text(const char *latin) { return QString::fromLatin1(latin); }
} // namespace

MainMenu::MainMenu(QMenuBar &menuBar, TranslatedTexts &texts) {
    for (const MenuRow &row : kMenus) {
        QMenu *menu = *row.parent == '\0' ? menuBar.addMenu(QString()) : new QMenu(mMenus.value(text(row.parent)));
        menu->setObjectName(text(row.name));
        texts.Add(text(row.caption), [menu](const QString &title) { menu->setTitle(title); });
        mMenus.insert(text(row.name), menu);
    }
    for (const CommandRow &row : kCommands) {
        QMenu &menu = Menu(text(row.menu));
        if (*row.name == '\0') {
            menu.addSeparator();
            continue;
        }
        if (QMenu *sub = mMenus.value(text(row.name))) {
            menu.addMenu(sub);
            continue;
        }
        QAction *action = menu.addAction(QString());
        action->setObjectName(text(row.name));
        action->setMenuRole(QAction::NoRole);
        action->setShortcut(QKeySequence(text(row.shortcut)));
        if (row.icon)
            action->setIcon(loadIcon(*row.icon));
        action->setEnabled(false);
        texts.Add(text(row.caption), [action](const QString &caption) { action->setText(caption); });
        mActions.insert(text(row.name), action);
    }
}

QAction &MainMenu::Action(const QString &name) const {
    QAction *action = mActions.value(name);
    if (action == nullptr)
        throw RunTimeError(ErrorNumber::kIndexOutOfRange, QStringLiteral("MainMenu"),
                           QStringLiteral("There is no command ") + name);
    return *action;
}

QMenu &MainMenu::Menu(const QString &name) const {
    QMenu *menu = mMenus.value(name);
    if (menu == nullptr)
        throw RunTimeError(ErrorNumber::kIndexOutOfRange, QStringLiteral("MainMenu"),
                           QStringLiteral("There is no menu ") + name);
    return *menu;
}

void MainMenu::Connect(const QString &name, const std::function<void()> &command) {
    QAction &action = Action(name);
    mCommands.insert(name, command);
    QObject::connect(&action, &QAction::triggered, &action, [this, name] { Run(name); });
    action.setEnabled(true);
}

void MainMenu::Run(const QString &name) {
    if (mCommands.contains(name) && Action(name).isEnabled())
        mCommands.value(name)();
}

void MainMenu::SetEnabled(const QString &name, bool enabled) { Action(name).setEnabled(enabled && Connected(name)); }

void MainMenu::SetVisible(const QString &name, bool visible) {
    if (QMenu *menu = mMenus.value(name))
        menu->menuAction()->setVisible(visible);
    else
        Action(name).setVisible(visible);
}
