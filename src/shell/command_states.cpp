#include "command_states.h"

#include "main_menu.h"
#include "shell_tool_bar.h"

#include <QAction>

#include <array>

namespace {
struct Pair {
    const char *button;
    const char *command;
};
constexpr std::array kFormCommands{Pair{"Revert", "mnuRevertForm"}, Pair{"Validate", "mnuValidateForm"},
                                   Pair{"Reject", "mnuReject"}, Pair{"Accept", "mnuAccept"}};
} // namespace

CommandStates::CommandStates(MainMenu &menu, ShellToolBar &standardBar) : mMenu(menu), mStandardBar(standardBar) {}

void CommandStates::EnableFormCommands(bool enabled) {
    for (const Pair &pair : kFormCommands) {
        mStandardBar.Button(QString::fromLatin1(pair.button)).setEnabled(enabled);
        mMenu.SetEnabled(QString::fromLatin1(pair.command), enabled);
    }
}

void CommandStates::EnableNew(bool enabled) {
    mMenu.SetEnabled(QStringLiteral("mnuNew"), enabled);
    mStandardBar.Button(QStringLiteral("New")).setEnabled(enabled);
}

void CommandStates::EnableRevertToSaved(bool enabled) { mMenu.SetEnabled(QStringLiteral("mnuRevertToSaved"), enabled); }
