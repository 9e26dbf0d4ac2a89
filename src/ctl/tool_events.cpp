#include "tool_events.h"

#include "ienabler.h"
#include "message_style.h"
#include "translation.h"

qint32 ToolEvents::answer(qint32 buttons) const {
    constexpr qint32 kButtonBits = 7;
    if ((buttons & kButtonBits) == MessageStyle::kOkOnly)
        return MessageAnswer::kOk;
    return mYesToAll ? MessageAnswer::kYes : MessageAnswer::kNo;
}

void ToolEvents::TransformerEvents_MsgBox(const QString &Prompt, qint32 Buttons, const QString & /*Title*/,
                                          qint32 &Answer, const QString &strParameters) {
    tell(Translation::Fill(Prompt, strParameters.split(u'|')));
    Answer = answer(Buttons);
    if (Answer == MessageAnswer::kNo)
        tell(QStringLiteral("(answered No; --yes answers Yes)"));
}

void ToolEvents::tell(const QString &text) {
    if (mDiverted != nullptr)
        mDiverted->append(text);
    else
        mConsole.message(text);
}

void ToolEvents::TransformerEvents_GeneralDialog(const QString &Prompt, qint32 Buttons, const QString &Title,
                                                 qint32 &Answer, const QString &strParameters) {
    TransformerEvents_MsgBox(Prompt, Buttons, Title, Answer, strParameters);
}

void ToolEvents::TransformerEvents_ChangeToTier(const QString & /*TierKey*/, const QStringList & /*FormList*/,
                                                const QStringList & /*FormDescList*/,
                                                const QHash<QString, QVariant> & /*FormAccessLevels*/,
                                                const QHash<QString, QVariant> & /*FormNetworks*/,
                                                const QStringList & /*FormTypeList*/, bool &Result) {
    Result = true;
}

std::vector<std::shared_ptr<Ienabler>> ToolEvents::openEnablers() const {
    return mEnablers == nullptr ? std::vector<std::shared_ptr<Ienabler>>() : mEnablers->All();
}

void ToolEvents::TransformerEvents_RefreshGridByUIID(const QString &UIID) {
    for (const auto &enabler : openEnablers())
        enabler->Ienabler_RefreshGridByUIID(UIID);
}

void ToolEvents::TransformerEvents_UpdateUIFieldByUIID(const QString &UIID, qint32 RecordNr, const QVariant &Value) {
    for (const auto &enabler : openEnablers())
        enabler->Ienabler_UpdateUIFieldByUIID(UIID, RecordNr, Value);
}

void ToolEvents::TransformerEvents_SetEnableDisableByUIID(const QString &UIID, bool Enable) {
    for (const auto &enabler : openEnablers())
        enabler->Ienabler_SetEnableDisableByUIID(UIID, Enable);
}

void ToolEvents::TransformerEvents_UIIDNotFound(const QString &UIID) {
    for (const auto &enabler : openEnablers())
        enabler->Ienabler_UIIDNotFound(UIID);
}

void ToolEvents::TransformerEvents_EnableDisableFormItem(const QString &FormName, bool Enable) {
    if (Enable)
        mUnavailable.remove(FormName);
    else
        mUnavailable.insert(FormName);
}

void ToolEvents::mobjTransformerEvents_ProgressBarStart(qint32 /*Total*/, const QString &strProgressTitle) {
    mConsole.progress(QString());
    mConsole.message(strProgressTitle);
}

void ToolEvents::mobjTransformerEvents_ProgressPing(qint32 /*lngIncrement*/, const QString &strItemName,
                                                    const QString &strItemPercentage) {
    const QString line = strItemName + u' ' + strItemPercentage;
    if (line != mLastProgress)
        mConsole.progress(line);
    mLastProgress = line;
}

void ToolEvents::mobjTransformerEvents_ProgressBarEnd(bool /*blnForceClose*/) { mConsole.progress(QString()); }

void ToolEvents::mobjTransformerEvents_RadioInfo(const QString &strRadioModel, const QString &strSWVersion,
                                                 const QString &strDBVersion, const QString &strHardwareRev,
                                                 const QString &strProductCode) {
    mRadioInfo = {{QStringLiteral("Radio"), strRadioModel},
                  {QStringLiteral("Software Version"), strSWVersion},
                  {QStringLiteral("Database Version"), strDBVersion},
                  {QStringLiteral("Hardware Revision"), strHardwareRev},
                  {QStringLiteral("Product Code"), strProductCode}};
}
