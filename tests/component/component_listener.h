#pragma once

#include "progress_events.h"
#include "transformer_component.h"
#include "transformer_events.h"

#include <QStringList>

#include <functional>

// Writes down every event of a component in one line each, and answers its questions.
class ComponentListener : public TransformerEvents, public ProgressEvents {
  public:
    QStringList log;                                  // all events, "UpdateUIFieldByUIID EconomyTimer 0 20"
    QStringList messages;                             // texts of message boxes, filled
    qint32 answer = 6;                                // to questions: 6 yes, 7 no
    std::function<void(const QString &line)> onEvent; // re-entry

    void clear() {
        log.clear();
        messages.clear();
    }
    // Lines that start with the event's name.
    [[nodiscard]] QStringList of(const QString &event) const;

    void TransformerEvents_ChangeToForm(const QString &strFormKey) override {
        add(QStringLiteral("ChangeToForm ") + strFormKey);
    }
    void TransformerEvents_ChangeToNetwork() override { add(QStringLiteral("ChangeToNetwork")); }
    void TransformerEvents_ChangeToSpecificationsForm() override { add(QStringLiteral("ChangeToSpecificationsForm")); }
    void TransformerEvents_ChangeTreeFilterPos(qint32 /*lngFilterPos*/) override {
        add(QStringLiteral("ChangeTreeFilterPos"));
    }
    void TransformerEvents_DisableUserEvents(bool /*blnStatus*/) override { add(QStringLiteral("DisableUserEvents")); }
    void TransformerEvents_GeneralDialog(const QString &Prompt, qint32 Buttons, const QString &Title, qint32 &Answer,
                                         const QString &strParameters) override;
    void TransformerEvents_LastAction(const QString &LastAction, const QString &AuxMessage) override {
        add(QStringLiteral("LastAction ") + LastAction + AuxMessage);
    }
    void TransformerEvents_LoadError(const QString &DllName) override { add(QStringLiteral("LoadError ") + DllName); }
    void TransformerEvents_MouseDefault() override { add(QStringLiteral("MouseDefault")); }
    void TransformerEvents_MouseHourglass() override { add(QStringLiteral("MouseHourglass")); }
    void TransformerEvents_MsgBox(const QString &Prompt, qint32 Buttons, const QString &Title, qint32 &Answer,
                                  const QString &strParameters) override;
    void TransformerEvents_RefreshGridByUIID(const QString &UIID) override {
        add(QStringLiteral("RefreshGridByUIID ") + UIID);
    }
    void TransformerEvents_SetTierNodeGreenTick(bool /*HighlightForm*/) override {
        add(QStringLiteral("SetTierNodeGreenTick"));
    }
    void TransformerEvents_ShowCredits() override { add(QStringLiteral("ShowCredits")); }
    void TransformerEvents_TerminateApplication() override { add(QStringLiteral("TerminateApplication")); }
    void TransformerEvents_WriteLine(const QString &message) override { add(QStringLiteral("WriteLine ") + message); }
    void TransformerEvents_UpdateUIFieldByUIID(const QString &UIID, qint32 RecordNr, const QVariant &Value) override;
    void TransformerEvents_FieldHasChanged() override { add(QStringLiteral("FieldHasChanged")); }
    void TransformerEvents_ChangeToTier(const QString &TierKey, const QStringList &FormList,
                                        const QStringList &FormDescList,
                                        const QHash<QString, QVariant> &FormAccessLevels,
                                        const QHash<QString, QVariant> &FormNetworks, const QStringList &FormTypeList,
                                        bool &Result) override;
    void TransformerEvents_ClearRange() override { add(QStringLiteral("ClearRange")); }
    void TransformerEvents_EnableDisableFormItem(const QString &FormName, bool Enable) override {
        add(QStringLiteral("EnableDisableFormItem %1 %2").arg(FormName).arg(Enable));
    }
    void TransformerEvents_SetEnableDisableByUIID(const QString &UIID, bool Enable) override {
        add(QStringLiteral("SetEnableDisableByUIID %1 %2").arg(UIID).arg(Enable));
    }
    void TransformerEvents_ShowFieldDetails(qint32 Min, qint32 Max, const Currency &Step,
                                            const QString &Unit) override {
        add(QStringLiteral("ShowFieldDetails %1 %2 %3 %4").arg(Min).arg(Max).arg(Step.toString(), Unit));
    }
    void TransformerEvents_UIIDNotFound(const QString &UIID) override { add(QStringLiteral("UIIDNotFound ") + UIID); }

    void mobjTransformerEvents_ProgressBarStart(qint32 /*Total*/, const QString &strProgressTitle) override {
        add(QStringLiteral("ProgressBarStart ") + strProgressTitle);
    }
    void mobjTransformerEvents_ProgressPing(qint32 /*lngIncrement*/, const QString & /*strItemName*/,
                                            const QString & /*strItemPercentage*/) override {
        add(QStringLiteral("ProgressPing"));
    }
    void mobjTransformerEvents_ProgressBarEnd(bool blnForceClose) override {
        add(QStringLiteral("ProgressBarEnd %1").arg(blnForceClose));
    }
    void mobjTransformerEvents_RadioInfo(const QString &strRadioModel, const QString & /*strSWVersion*/,
                                         const QString & /*strDBVersion*/, const QString & /*strHardwareRev*/,
                                         const QString & /*strProductCode*/) override {
        add(QStringLiteral("RadioInfo ") + strRadioModel);
    }

  private:
    void add(const QString &line);
};
