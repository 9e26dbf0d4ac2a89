#pragma once

#include "transformer_events.h"

#include <memory>
#include <vector>

class BusyPointer;
class CommandStates;
class ComponentDialogs;
class ErrorReport;
class FieldDetails;
class FormHost;
class GreenTicks;
class HelpAboutWindows;
class Ienabler;
class LoadFailure;
class ProcessControl;
class StatusPanels;
class Tiers;
class Translation;
class TreeNavigation;
class UserEvents;
struct ProcessValues;

// What each of the component's events does to the window.
class EventSink final : public TransformerEvents {
  public:
    struct Parts {
        TreeNavigation &navigation;
        Tiers &tiers;
        FormHost &host;
        ComponentDialogs &dialogs;
        UserEvents &userEvents;
        BusyPointer &pointer;
        StatusPanels &panels;
        FieldDetails &details;
        CommandStates &commands;
        GreenTicks &ticks;
        LoadFailure &loadFailure;
        ProcessControl &processControl;
        HelpAboutWindows &about;
    };
    EventSink(const ProcessValues &process, const Translation &translation, const Parts &parts, ErrorReport &errors);

    void TransformerEvents_ChangeToForm(const QString &strFormKey) override;
    void TransformerEvents_ChangeToNetwork() override;
    void TransformerEvents_ChangeToSpecificationsForm() override;
    void TransformerEvents_ChangeTreeFilterPos(qint32 lngFilterPos) override;
    void TransformerEvents_DisableUserEvents(bool blnStatus) override;
    void TransformerEvents_GeneralDialog(const QString &Prompt, qint32 Buttons, const QString &Title, qint32 &Answer,
                                         const QString &strParameters) override;
    void TransformerEvents_LastAction(const QString &LastAction, const QString &AuxMessage) override;
    void TransformerEvents_LoadError(const QString &DllName) override;
    void TransformerEvents_MouseDefault() override;
    void TransformerEvents_MouseHourglass() override;
    void TransformerEvents_MsgBox(const QString &Prompt, qint32 Buttons, const QString &Title, qint32 &Answer,
                                  const QString &strParameters) override;
    void TransformerEvents_RefreshGridByUIID(const QString &UIID) override;
    void TransformerEvents_SetTierNodeGreenTick(bool HighlightForm) override;
    void TransformerEvents_ShowCredits() override;
    void TransformerEvents_TerminateApplication() override;
    void TransformerEvents_WriteLine(const QString &message) override;
    void TransformerEvents_UpdateUIFieldByUIID(const QString &UIID, qint32 RecordNr, const QVariant &Value) override;
    void TransformerEvents_FieldHasChanged() override;
    void TransformerEvents_ChangeToTier(const QString &TierKey, const QStringList &FormList,
                                        const QStringList &FormDescList,
                                        const QHash<QString, QVariant> &FormAccessLevels,
                                        const QHash<QString, QVariant> &FormNetworks, const QStringList &FormTypeList,
                                        bool &Result) override;
    void TransformerEvents_ClearRange() override;
    void TransformerEvents_EnableDisableFormItem(const QString &FormName, bool Enable) override;
    void TransformerEvents_SetEnableDisableByUIID(const QString &UIID, bool Enable) override;
    void TransformerEvents_ShowFieldDetails(qint32 Min, qint32 Max, const Currency &Step, const QString &Unit) override;
    void TransformerEvents_UIIDNotFound(const QString &UIID) override;

    [[nodiscard]] const QStringList &MessageLog() const { return mMessageLog; }

  private:
    // Every open enabler, only while a form is loaded; a copy, since an event may close a form.
    [[nodiscard]] std::vector<std::shared_ptr<Ienabler>> openEnablers() const;

    const ProcessValues &mProcess;
    const Translation &mTranslation;
    Parts mParts;
    ErrorReport &mErrors;
    QStringList mMessageLog;
};
