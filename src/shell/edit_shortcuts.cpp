#include "edit_shortcuts.h"

#include "edit_commands.h"
#include "main_menu.h"

#include <QAction>
#include <QShortcut>
#include <QWidget>

namespace {
struct Row {
    const char *command;
    QKeySequence::StandardKey key;
};
constexpr Row kRows[] = {
    {"mnuCut", QKeySequence::Cut}, {"mnuCopy", QKeySequence::Copy}, {"mnuPaste", QKeySequence::Paste}};
} // namespace

EditShortcuts::EditShortcuts(QWidget &window, MainMenu &menu, EditCommands &commands) {
    for (const Row &row : kRows) {
        const QString name = QString::fromLatin1(row.command);
        const QKeySequence key(QKeySequence::keyBindings(row.key).constFirst());
        // In the menu the key is only shown: a disabled command would not hear it.
        menu.Action(name).setShortcutContext(Qt::WidgetShortcut);
        menu.Action(name).setShortcut(key);
        const auto *shortcut = new QShortcut(key, &window);
        QObject::connect(shortcut, &QShortcut::activated, &window, [&menu, &commands, name] {
            commands.mnuEdit_Click();
            menu.Run(name);
        });
    }
}
