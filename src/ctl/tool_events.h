#pragma once

#include "console.h"
#include "enabler_collection.h"
#include "progress_events.h"
#include "transformer_events.h"

#include <QSet>

// The component's messages and progress as lines on standard error. A question counts as No unless all are answered
// Yes.
class ToolEvents final : public TransformerEvents, public ProgressEvents {
  public:
    ToolEvents(Console &console, bool yesToAll) : mConsole(console), mYesToAll(yesToAll) {}

    void TransformerEvents_MsgBox(const QString &Prompt, qint32 Buttons, const QString &Title, qint32 &Answer,
                                  const QString &strParameters) override;
    void TransformerEvents_GeneralDialog(const QString &Prompt, qint32 Buttons, const QString &Title, qint32 &Answer,
                                         const QString &strParameters) override;
    void TransformerEvents_ChangeToTier(const QString &TierKey, const QStringList &FormList,
                                        const QStringList &FormDescList,
                                        const QHash<QString, QVariant> &FormAccessLevels,
                                        const QHash<QString, QVariant> &FormNetworks, const QStringList &FormTypeList,
                                        bool &Result) override;
    void TransformerEvents_RefreshGridByUIID(const QString &UIID) override;
    void TransformerEvents_UpdateUIFieldByUIID(const QString &UIID, qint32 RecordNr, const QVariant &Value) override;
    void TransformerEvents_EnableDisableFormItem(const QString &FormName, bool Enable) override;
    void TransformerEvents_SetEnableDisableByUIID(const QString &UIID, bool Enable) override;
    void TransformerEvents_UIIDNotFound(const QString &UIID) override;
    void mobjTransformerEvents_ProgressBarStart(qint32 Total, const QString &strProgressTitle) override;
    void mobjTransformerEvents_ProgressPing(qint32 lngIncrement, const QString &strItemName,
                                            const QString &strItemPercentage) override;
    void mobjTransformerEvents_ProgressBarEnd(bool blnForceClose) override;
    void mobjTransformerEvents_RadioInfo(const QString &strRadioModel, const QString &strSWVersion,
                                         const QString &strDBVersion, const QString &strHardwareRev,
                                         const QString &strProductCode) override;

    // What a window would show and a tool has no place for.
    void TransformerEvents_ChangeToForm(const QString & /*strFormKey*/) override {}
    void TransformerEvents_ChangeToNetwork() override {}
    void TransformerEvents_ChangeToSpecificationsForm() override {}
    void TransformerEvents_ChangeTreeFilterPos(qint32 /*lngFilterPos*/) override {}
    void TransformerEvents_DisableUserEvents(bool /*blnStatus*/) override {}
    void TransformerEvents_LastAction(const QString & /*LastAction*/, const QString & /*AuxMessage*/) override {}
    void TransformerEvents_LoadError(const QString & /*DllName*/) override {}
    void TransformerEvents_MouseDefault() override {}
    void TransformerEvents_MouseHourglass() override {}
    void TransformerEvents_SetTierNodeGreenTick(bool /*HighlightForm*/) override {}
    void TransformerEvents_ShowCredits() override {}
    void TransformerEvents_TerminateApplication() override {}
    void TransformerEvents_WriteLine(const QString & /*message*/) override {}
    void TransformerEvents_FieldHasChanged() override {}
    void TransformerEvents_ClearRange() override {}
    void TransformerEvents_ShowFieldDetails(qint32 /*Min*/, qint32 /*Max*/, const Currency & /*Step*/,
                                            const QString & /*Unit*/) override {}

    // While diverted, messages are collected here instead of going to standard error (see MessageDiversion). Null ends
    // it.
    void divertMessages(QStringList *to) { mDiverted = to; }
    // What concerns fields reaches these enablers from now on. Null ends it.
    void showOn(const EnablerCollection *enablers) { mEnablers = enablers; }
    // Captions of the forms that the data makes unavailable, as told last.
    [[nodiscard]] const QSet<QString> &unavailableForms() const { return mUnavailable; }
    // Label and value of what an identified radio said about itself.
    [[nodiscard]] const QList<std::pair<QString, QString>> &radioInfo() const { return mRadioInfo; }

  private:
    [[nodiscard]] qint32 answer(qint32 buttons) const;
    void tell(const QString &text);
    [[nodiscard]] std::vector<std::shared_ptr<Ienabler>> openEnablers() const;

    Console &mConsole;
    bool mYesToAll;
    QStringList *mDiverted = nullptr;
    const EnablerCollection *mEnablers = nullptr;
    QSet<QString> mUnavailable;
    QString mLastProgress;
    QList<std::pair<QString, QString>> mRadioInfo;
};

// While it lives, the component's messages are kept instead of being written.
class MessageDiversion {
  public:
    explicit MessageDiversion(ToolEvents &events) : mEvents(events) { mEvents.divertMessages(&mMessages); }
    ~MessageDiversion() { mEvents.divertMessages(nullptr); }
    MessageDiversion(const MessageDiversion &) = delete;
    MessageDiversion &operator=(const MessageDiversion &) = delete;

    [[nodiscard]] QString text() const { return mMessages.join(u' '); }

  private:
    ToolEvents &mEvents;
    QStringList mMessages;
};
