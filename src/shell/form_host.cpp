#include "form_host.h"

#include "busy_pointer.h"
#include "common_error_handler.h"
#include "form_nodes.h"
#include "form_pane.h"
#include "green_ticks.h"
#include "ienabler.h"
#include "iusrfrm.h"
#include "message_style.h"
#include "pane_layout.h"
#include "pending_events.h"
#include "process_values.h"
#include "product_identity.h"
#include "transformer.h"
#include "translation.h"
#include "window_services.h"

namespace {
const QString kMain = QStringLiteral("Main");
}

FormHost::FormHost(const FieldServices &services, const Parts &parts)
    : mServices(services), mParts(parts), mProcess(services.process), mBoxes(services.boxes), mErrors(services.errors) {
}

bool FormHost::IsFormLoaded() const { return mParts.pane.Hosted().form != nullptr; }

const HostedForm &FormHost::LoadedUsrControl() const { return mParts.pane.Hosted(); }

bool FormHost::CanOpen(const QString &usrfrmName) const { return mParts.factory.CanCreate(usrfrmName); }

bool FormHost::OpenForm(const QString &usrfrmName, const QString &usrfrmDesc, bool blnDoWeSaveFormImmediately) try {
    if (mChangingForms)
        return false;
    mChangingForms = true;
    const bool saveNow = mProcess.objTransformer->GetFormIsDirty() && blnDoWeSaveFormImmediately;
    if (!CloseForm(saveNow)) {
        mChangingForms = false;
        return false;
    }
    {
        const HourglassGuard hourglass(mParts.pointer);
        buildForm(usrfrmName, usrfrmDesc);
    }
    if (mParts.pane.Scrolling())
        mParts.layout.Form_Resize();
    if (const auto enabler = mProcess.colEnablers.Item(kMain)) {
        mParts.nodes.SetHelpContextID(enabler->Ienabler_HelpContextID());
        enabler->Ienabler_ClearWhatsThisHelpIDs();
    }
    mChangingForms = false;
    return true;
} catch (...) {
    return OpenFormFailed();
}

void FormHost::buildForm(const QString &usrfrmName, const QString &usrfrmDesc) {
    const HostedForm form = mParts.factory.CreateForm(usrfrmName, mServices, mParts.pane.FormParent());
    mParts.pane.Host(form);
    mTerminated = false;
    const auto enabler = form.form->Iusrfrm_Enabler();
    mProcess.colEnablers.Add(enabler, kMain);
    mProcess.CurrentEnablerKey = kMain;
    enabler->Ienabler_InitialiseFields(-1);
    mParts.pane.ShowFrame();
    mParts.pane.SetCaption(mServices.translation.NLSStr(usrfrmDesc));
    mParts.pane.ShowForm();
    mParts.factory.UserControl_Show(form);
    if (const qint32 node = mParts.nodes.IndexOfKey(usrfrmName))
        mParts.nodes.SelectAsCurrentForm(node);
}

// To be called in a catch block.
bool FormHost::OpenFormFailed() {
    mChangingForms = false;
    if (ErrorReport::Current().Number != ErrorNumber::kOutOfMemory) {
        mErrors.Tail("OpenForm");
        return false;
    }
    UnloadCurrentForm(); // what was built of it
    mBoxes.TranslateMsgBox(QStringLiteral("Windows is unable to allocate enough system resources to display the "
                                          "selected screen. Please close one or more applications and try again."),
                           MessageStyle::kOkOnly, ProductIdentity::title(), QString());
    return false;
}

bool FormHost::CloseForm(bool SaveNow) try {
    if (!IsFormLoaded())
        return true;
    if (!(SaveNow ? SaveForm() : RevertForm()))
        return false;
    UnloadCurrentForm();
    return true;
} catch (...) {
    return CloseFormFailed();
}

// To be called in a catch block.
bool FormHost::CloseFormFailed() {
    if (ErrorReport::Current().Number == ErrorNumber::kUnableToUnload) {
        mBoxes.MsgBox(
            QStringLiteral(
                "Error 365 occurred.  It is likely you are trying to unload the current form from within one of the "
                "following:\r\n1. Change, Click, or DropDown events of a ComboBox. \r\n2. Scroll event of an "
                "HScrollBar or VScrollBar control.\r\n3. Unload statement in the Resize event of a Data, Form, "
                "MDIForm, or PictureBox control.\r\n4. Unload statement in the RePosition or Validate event of a Data "
                "control.\r\n5. Unload statement in the ObjectMove event of an OLE Container control."),
            MessageStyle::kOkOnly, QString());
    }
    mErrors.Tail("CloseForm");
    return false;
}

void FormHost::terminateForm() {
    if (mTerminated)
        return;
    mTerminated = true;
    mParts.pane.Hosted().form->Iusrfrm_Terminate();
}

void FormHost::UnloadCurrentForm() try {
    if (!IsFormLoaded())
        return;
    terminateForm();
    mParts.pane.Remove();
    mProcess.colEnablers.Remove(kMain);
}
ERROR_TAIL()

bool FormHost::SaveForm() try {
    if (!IsFormLoaded())
        return false;
    const auto enabler = mProcess.colEnablers.Item(kMain);
    if (enabler == nullptr)
        return false;
    enabler->Ienabler_ForceSaveToCurrentField();
    if (!enabler->Ienabler_OKToLeaveForm() || !ValidateForm())
        return false;
    mProcess.objTransformer->SaveForm(mProcess.objTransformer->GetCurrentTier());
    mParts.ticks.SetTierNodeGreenTick(true);
    return true;
}
ERROR_TAIL(false)

bool FormHost::ValidateForm() try {
    const auto enabler = mProcess.colEnablers.Item(mProcess.CurrentEnablerKey);
    return IsFormLoaded() && enabler != nullptr && enabler->Ienabler_ValidateForm(true);
}
ERROR_TAIL(false)

bool FormHost::RevertForm() try {
    if (mParts.nodes.Visible()) {
        mParts.nodes.SetFocus();
        letPendingEventsRun();
    }
    if (IsFormLoaded()) {
        mProcess.objTransformer->RevertFormData(mProcess.objTransformer->GetCurrentTier());
        mParts.ticks.SetTierNodeGreenTick(true);
    }
    return true;
}
ERROR_TAIL(false)

void FormHost::ChangeToSpecificationsForm() try {
    if (!OpenForm(QStringLiteral("usrctlCalSpecifications"), QStringLiteral("Specifications"), false))
        return;
    mParts.nodes.Select(1);
    mProcess.objTransformer->SetCurrentFormName(QStringLiteral("USRCTLCALSPECIFICATIONS"));
}
ERROR_TAIL_AS("TransformerEvents_ChangeToSpecificationsForm")
