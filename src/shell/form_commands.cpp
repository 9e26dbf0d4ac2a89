#include "form_commands.h"

#include "common_error_handler.h"
#include "form_host.h"
#include "form_nodes.h"
#include "pending_events.h"
#include "process_values.h"
#include "transformer.h"
#include "tree_navigation.h"

FormCommands::FormCommands(Transformer &transformer, const ProcessValues &process, FormHost &host, FormNodes &nodes,
                           TreeNavigation &navigation, ErrorReport &errors)
    : mTransformer(transformer), mProcess(process), mHost(host), mNodes(nodes), mNavigation(navigation),
      mErrors(errors) {}

void FormCommands::RevertCurrentField() {
    const auto enabler = mProcess.colEnablers.Item(mProcess.CurrentEnablerKey);
    if (mHost.IsFormLoaded() && enabler != nullptr)
        enabler->Ienabler_RevertCurrentField();
}

void FormCommands::mnuUndo_Click() try { RevertCurrentField(); }
ERROR_TAIL()

void FormCommands::mnuValidateForm_Click() try { mHost.SaveForm(); }
ERROR_TAIL()

void FormCommands::mnuRevertForm_Click() try {
    mNodes.SetFocus();
    letPendingEventsRun();
    mNavigation.ChangeFormTreeNodes(false, false);
    mTransformer.RefreshFormList();
}
ERROR_TAIL()

void FormCommands::mnuAccept_Click() try { mnuValidateForm_Click(); }
ERROR_TAIL()

void FormCommands::mnuReject_Click() try { mnuRevertForm_Click(); }
ERROR_TAIL()

void FormCommands::Form_KeyPress(int KeyAscii) try {
    constexpr int kEscape = 27;
    if (KeyAscii == kEscape)
        mHost.RevertForm();
}
ERROR_TAIL()
