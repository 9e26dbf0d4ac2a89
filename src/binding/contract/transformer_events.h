#pragma once

#include "currency.h"

#include <QHash>
#include <QString>
#include <QStringList>
#include <QVariant>

// What the component tells the interface. Every event arrives on the interface's one thread, nearly always from inside
// a call into the component: a listener must be ready for re-entry at each of its calls. Answer and Result are preset
// (0 and false) by the component, and stay so where nobody listens. strParameters are values joined by "|" for the
// placeholders %0:S, %1:S ... of Prompt. All texts are untranslated English.
class TransformerEvents {
  public:
    virtual ~TransformerEvents() = default;

    // Open the form: a number is a node's index from 1, else a key. Nothing if it is selected or does not exist.
    virtual void TransformerEvents_ChangeToForm(const QString &strFormKey) = 0;
    virtual void TransformerEvents_ChangeToNetwork() = 0;
    virtual void TransformerEvents_ChangeToSpecificationsForm() = 0;
    // Tabs count from 1.
    virtual void TransformerEvents_ChangeTreeFilterPos(qint32 lngFilterPos) = 0;
    // True: hourglass on, main window disabled. False: enabled, hourglass off. Pending window events run first.
    virtual void TransformerEvents_DisableUserEvents(bool blnStatus) = 0;
    // A question that the user can switch off (setting "GeneralDialogs"): then the answer is 6, yes.
    // Buttons and Answer: MessageStyle and MessageAnswer.
    virtual void TransformerEvents_GeneralDialog(const QString &Prompt, qint32 Buttons, const QString &Title,
                                                 qint32 &Answer, const QString &strParameters) = 0;
    virtual void TransformerEvents_LastAction(const QString &LastAction, const QString &AuxMessage) = 0;
    virtual void TransformerEvents_LoadError(const QString &DllName) = 0;
    virtual void TransformerEvents_MouseDefault() = 0;
    virtual void TransformerEvents_MouseHourglass() = 0;
    virtual void TransformerEvents_MsgBox(const QString &Prompt, qint32 Buttons, const QString &Title, qint32 &Answer,
                                          const QString &strParameters) = 0;
    virtual void TransformerEvents_RefreshGridByUIID(const QString &UIID) = 0;
    virtual void TransformerEvents_SetTierNodeGreenTick(bool HighlightForm) = 0;
    virtual void TransformerEvents_ShowCredits() = 0;
    virtual void TransformerEvents_TerminateApplication() = 0;
    virtual void TransformerEvents_WriteLine(const QString &message) = 0;
    virtual void TransformerEvents_UpdateUIFieldByUIID(const QString &UIID, qint32 RecordNr, const QVariant &Value) = 0;
    virtual void TransformerEvents_FieldHasChanged() = 0;
    // FormList, FormDescList and FormTypeList by position; FormAccessLevels and FormNetworks by the entry of
    // FormDescList. A FormList entry with the prefix "->" is a child of the last one without. Result: shown.
    virtual void TransformerEvents_ChangeToTier(const QString &TierKey, const QStringList &FormList,
                                                const QStringList &FormDescList,
                                                const QHash<QString, QVariant> &FormAccessLevels,
                                                const QHash<QString, QVariant> &FormNetworks,
                                                const QStringList &FormTypeList, bool &Result) = 0;
    virtual void TransformerEvents_ClearRange() = 0;
    // FormName is an entry of FormDescList without "&".
    virtual void TransformerEvents_EnableDisableFormItem(const QString &FormName, bool Enable) = 0;
    virtual void TransformerEvents_SetEnableDisableByUIID(const QString &UIID, bool Enable) = 0;
    virtual void TransformerEvents_ShowFieldDetails(qint32 Min, qint32 Max, const Currency &Step,
                                                    const QString &Unit) = 0;
    virtual void TransformerEvents_UIIDNotFound(const QString &UIID) = 0;
};
