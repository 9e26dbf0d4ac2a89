#include "edit_commands.h"

#include "cls_control_item.h"
#include "common_error_handler.h"
#include "form_host.h"
#include "main_menu.h"
#include "process_values.h"

namespace {
constexpr qint32 kCut = 1;
constexpr qint32 kCopy = 2;
constexpr qint32 kPaste = 4;

// Null without a form or without an active field. The caller keeps the item alive.
std::shared_ptr<clsControlItem> activeItem(const ProcessValues &process, const FormHost &host) {
    const auto enabler = process.colEnablers.Item(process.CurrentEnablerKey);
    if (!host.IsFormLoaded() || enabler == nullptr)
        return nullptr;
    const auto item = enabler->Ienabler_GetActiveControl();
    return item == nullptr || item->Terminated() ? nullptr : item;
}
} // namespace

EditCommands::EditCommands(const ProcessValues &process, const FormHost &host, MainMenu &menu,
                           const ClipboardText &clipboard, ErrorReport &errors)
    : mProcess(process), mHost(host), mMenu(menu), mClipboard(clipboard), mErrors(errors) {}

void EditCommands::mnuEdit_Click() try {
    for (const char *command : {"mnuDelete", "mnuCut", "mnuCopy", "mnuPaste"})
        mMenu.SetEnabled(QString::fromLatin1(command), false);
    const auto item = activeItem(mProcess, mHost);
    if (item == nullptr)
        return;
    Ifield &field = item->Field();
    const qint32 operations = field.Ifield_GetEditOperations();
    mMenu.SetEnabled(QStringLiteral("mnuCopy"), (operations & kCopy) != 0);
    if (!field.Ifield_GetEnabled())
        return;
    mMenu.SetEnabled(QStringLiteral("mnuCut"), (operations & kCut) != 0);
    mMenu.SetEnabled(QStringLiteral("mnuPaste"), (operations & kPaste) != 0 && mClipboard.HasText());
}
ERROR_TAIL()

void EditCommands::run(void (Ifield::*command)()) {
    if (const auto item = activeItem(mProcess, mHost))
        (item->Field().*command)();
}

void EditCommands::mnuCut_Click() try { run(&Ifield::Ifield_Cut); }
ERROR_TAIL()

void EditCommands::mnuCopy_Click() try { run(&Ifield::Ifield_Copy); }
ERROR_TAIL()

void EditCommands::mnuPaste_Click() try { run(&Ifield::Ifield_Paste); }
ERROR_TAIL()

void EditCommands::mnuDelete_Click() try { run(&Ifield::Ifield_Delete); }
ERROR_TAIL()

void EditCommands::mnuSelectAll_Click() try { run(&Ifield::Ifield_SelectAll); }
ERROR_TAIL()
