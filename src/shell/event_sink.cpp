#include "event_sink.h"

#include "busy_pointer.h"
#include "command_states.h"
#include "common_error_handler.h"
#include "component_dialogs.h"
#include "field_details.h"
#include "form_host.h"
#include "green_ticks.h"
#include "help_about_windows.h"
#include "load_failure.h"
#include "process_values.h"
#include "shell_ports.h"
#include "status_panels.h"
#include "tiers.h"
#include "translation.h"
#include "tree_navigation.h"
#include "user_events.h"

EventSink::EventSink(const ProcessValues &process, const Translation &translation, const Parts &parts,
                     ErrorReport &errors)
    : mProcess(process), mTranslation(translation), mParts(parts), mErrors(errors) {}

std::vector<std::shared_ptr<Ienabler>> EventSink::openEnablers() const {
    if (!mParts.host.IsFormLoaded())
        return {};
    return mProcess.colEnablers.All();
}

void EventSink::TransformerEvents_ChangeToForm(const QString &strFormKey) {
    mParts.navigation.ChangeToForm(strFormKey);
}

void EventSink::TransformerEvents_ChangeToNetwork() { mParts.navigation.ChangeToNetwork(); }

void EventSink::TransformerEvents_ChangeToSpecificationsForm() { mParts.host.ChangeToSpecificationsForm(); }

void EventSink::TransformerEvents_ChangeTreeFilterPos(qint32 lngFilterPos) {
    mParts.navigation.ChangeTreeFilterPos(lngFilterPos);
}

void EventSink::TransformerEvents_DisableUserEvents(bool blnStatus) try {
    mParts.userEvents.DisableUserEvents(blnStatus);
}
ERROR_TAIL()

void EventSink::TransformerEvents_GeneralDialog(const QString &Prompt, qint32 Buttons, const QString &Title,
                                                qint32 &Answer, const QString &strParameters) {
    mParts.dialogs.GeneralDialog(Prompt, Buttons, Title, Answer, strParameters);
}

void EventSink::TransformerEvents_LastAction(const QString &LastAction, const QString &AuxMessage) try {
    mParts.panels.Show(StatusPanels::kLastAction,
                       mTranslation.NLSStr(LastAction) + QStringLiteral(" ") + AuxMessage + QStringLiteral("  "));
}
ERROR_TAIL()

void EventSink::TransformerEvents_LoadError(const QString &DllName) { mParts.loadFailure.FailedToLoadDLL(DllName); }

void EventSink::TransformerEvents_MouseDefault() { mParts.pointer.MouseDefault(); }

void EventSink::TransformerEvents_MouseHourglass() { mParts.pointer.MouseHourglass(); }

void EventSink::TransformerEvents_MsgBox(const QString &Prompt, qint32 Buttons, const QString &Title, qint32 &Answer,
                                         const QString &strParameters) {
    mParts.dialogs.MsgBox(Prompt, Buttons, Title, Answer, strParameters);
}

void EventSink::TransformerEvents_RefreshGridByUIID(const QString &UIID) try {
    for (const auto &enabler : openEnablers())
        enabler->Ienabler_RefreshGridByUIID(UIID);
}
ERROR_TAIL()

void EventSink::TransformerEvents_SetTierNodeGreenTick(bool HighlightForm) {
    mParts.ticks.SetTierNodeGreenTick(HighlightForm);
}

void EventSink::TransformerEvents_ShowCredits() { mParts.about.ShowCredits(); }

void EventSink::TransformerEvents_TerminateApplication() { mParts.processControl.EndNow(0); }

void EventSink::TransformerEvents_WriteLine(const QString &message) { mMessageLog.append(message); }

void EventSink::TransformerEvents_UpdateUIFieldByUIID(const QString &UIID, qint32 RecordNr, const QVariant &Value) try {
    for (const auto &enabler : openEnablers())
        enabler->Ienabler_UpdateUIFieldByUIID(UIID, RecordNr, Value);
}
ERROR_TAIL()

void EventSink::TransformerEvents_FieldHasChanged() try { mParts.commands.EnableFormCommands(true); }
ERROR_TAIL()

void EventSink::TransformerEvents_ChangeToTier(const QString &TierKey, const QStringList &FormList,
                                               const QStringList &FormDescList,
                                               const QHash<QString, QVariant> &FormAccessLevels,
                                               const QHash<QString, QVariant> &FormNetworks,
                                               const QStringList &FormTypeList, bool &Result) {
    mParts.tiers.ChangeToTier(TierKey, {FormList, FormDescList, FormAccessLevels, FormNetworks, FormTypeList}, Result);
}

void EventSink::TransformerEvents_ClearRange() try { mParts.details.HideFieldDetails(); }
ERROR_TAIL()

void EventSink::TransformerEvents_EnableDisableFormItem(const QString &FormName, bool Enable) {
    mParts.navigation.EnableDisableFormItem(FormName, Enable);
}

void EventSink::TransformerEvents_SetEnableDisableByUIID(const QString &UIID, bool Enable) try {
    for (const auto &enabler : openEnablers())
        enabler->Ienabler_SetEnableDisableByUIID(UIID, Enable);
}
ERROR_TAIL()

void EventSink::TransformerEvents_ShowFieldDetails(qint32 Min, qint32 Max, const Currency &Step,
                                                   const QString &Unit) try {
    mParts.details.ShowFieldDetails(Min, Max, Step, Unit);
}
ERROR_TAIL()

void EventSink::TransformerEvents_UIIDNotFound(const QString &UIID) try {
    const auto enabler = mProcess.colEnablers.Item(mProcess.CurrentEnablerKey);
    if (mParts.host.IsFormLoaded() && enabler != nullptr)
        enabler->Ienabler_UIIDNotFound(UIID);
}
ERROR_TAIL()
