#include "tool_bar_commands.h"

#include "main_menu.h"
#include "shell_tool_bar.h"

#include <QAction>
#include <QToolBar>

#include <array>

namespace {
struct Row {
    const char *key;
    const char *command;
};
constexpr std::array kRows{
    Row{"New", "mnuNew"},
    Row{"Open", "mnuOpen"},
    Row{"Save", "mnuSave"},
    Row{"SaveAs", "mnuSaveAs"},
    Row{"SaveSquirt", "mnuSquirt"},
    Row{"Print", "mnuPrint"},
    Row{"Revert", "mnuRevertForm"},
    Row{"Validate", "mnuValidateForm"},
    Row{"Accept", "mnuAccept"},
    Row{"Reject", "mnuReject"},
    Row{"Help What's This", "mnuWhatsThisHelp"},
    Row{"Help", "mnuContents"},
    Row{"Read", "mnuReadRadio"},
    Row{"Program", "mnuProgramRadio"},
    Row{"Interrogate", "mnuInterrogateRadio"},
};
} // namespace

ToolBarCommands::ToolBarCommands(MainMenu &menu) : mMenu(menu) {}

QString ToolBarCommands::CommandOf(const QString &key) {
    for (const Row &row : kRows) {
        if (key == QLatin1String(row.key))
            return QString::fromLatin1(row.command);
    }
    return {};
}

void ToolBarCommands::Run(const QString &key) {
    const QString command = CommandOf(key);
    if (!command.isEmpty())
        mMenu.Run(command);
}

void ToolBarCommands::DisableUnconnected(const ShellToolBar &bar) const {
    for (QAction *button : bar.Bar().actions()) {
        if (!button->isSeparator() && !mMenu.Connected(CommandOf(button->objectName())))
            button->setEnabled(false);
    }
}
