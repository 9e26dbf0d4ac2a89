#include "document_shell_adapter.h"

#include "component_dialogs.h"
#include "filter_tabs.h"
#include "form_commands.h"
#include "form_host.h"
#include "form_nodes.h"
#include "form_pane.h"
#include "green_ticks.h"
#include "load_failure.h"
#include "message_style.h"
#include "pending_events.h"
#include "tree_navigation.h"
#include "window_title.h"

#include <QTabBar>

DocumentShellAdapter::DocumentShellAdapter(const Parts &parts) : mParts(parts) {}

QWidget *DocumentShellAdapter::Window() const { return &mParts.window; }
bool DocumentShellAdapter::IsFormLoaded() const { return mParts.host.IsFormLoaded(); }
bool DocumentShellAdapter::SaveForm() { return mParts.host.SaveForm(); }
bool DocumentShellAdapter::RevertForm() { return mParts.host.RevertForm(); }
bool DocumentShellAdapter::OpenForm(const QString &usrfrmName, const QString &usrfrmDesc,
                                    bool blnDoWeSaveFormImmediately) {
    return mParts.host.OpenForm(usrfrmName, usrfrmDesc, blnDoWeSaveFormImmediately);
}
void DocumentShellAdapter::UnloadCurrentForm() { mParts.host.UnloadCurrentForm(); }
void DocumentShellAdapter::RevertCurrentField() { mParts.formCommands.RevertCurrentField(); }
void DocumentShellAdapter::SetFormFrameCaption(const QString &caption) { mParts.pane.SetCaption(caption); }
void DocumentShellAdapter::ChangeFormTreeNodes(bool blnSaveNow, bool blnForce) {
    mParts.navigation.ChangeFormTreeNodes(blnSaveNow, blnForce);
}
void DocumentShellAdapter::SetTierNodeGreenTick(bool HighlightForm) {
    mParts.ticks.SetTierNodeGreenTick(HighlightForm);
}

void DocumentShellAdapter::FocusFormTree() {
    mParts.nodes.SetFocus();
    letPendingEventsRun();
}

void DocumentShellAdapter::SelectNode(qint32 index) { mParts.nodes.Select(index); }

QString DocumentShellAdapter::NodeText(qint32 index) const {
    return index >= 1 && index <= mParts.nodes.Count() ? mParts.nodes.Text(index) : QString();
}

void DocumentShellAdapter::SelectFirstFilterTab() {
    if (!mParts.filterTabs.Strip().isHidden() && mParts.filterTabs.Selected() != 1)
        mParts.filterTabs.Select(1);
}

void DocumentShellAdapter::SetUIFormTitle() { mParts.title.SetUIFormTitle(); }
void DocumentShellAdapter::NameRadio() { mParts.title.NameRadio(); }

qint32 DocumentShellAdapter::GeneralDialog(const QString &Prompt, qint32 Buttons, const QString &Title,
                                           const QString &strParameters) {
    qint32 answer = MessageAnswer::kNone;
    mParts.dialogs.GeneralDialog(Prompt, Buttons, Title, answer, strParameters);
    return answer;
}

void DocumentShellAdapter::FailedToLoadDLL(const QString &DllName) { mParts.loadFailure.FailedToLoadDLL(DllName); }
