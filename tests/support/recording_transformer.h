#pragma once

#include "call_log.h"
#include "call_script.h"
#include "listener_list.h"
#include "transformer.h"

#include <functional>

// A complete double of the component: each call becomes a line of the log, in order, and is answered as scripted. It
// keeps no values. Without a script: every field is enabled and of level 0, every write and record operation is
// accepted, every form valid; texts are "", numbers 0, lists are absent, a setting answers its default.
//
// Scripted answers of operations with out arguments:
//   GetComboItems, GetIDItems, GetGridData   a QStringList: a row an entry, its cells joined by "|". Without an answer
//                                            the list is absent ("not got").
//   AddRecord                                a number: accepted, and that is the record's; false: refused.
//   SetValue, DeleteRecord, ReadFile ...     false: refused.
class RecordingTransformer final : public Transformer {
  public:
    explicit RecordingTransformer(CallLog &log) : mScript(log) {}

    [[nodiscard]] CallScript::Address &when(const QString &operation) { return mScript.when(operation); }
    [[nodiscard]] CallScript::Address &when(const QString &operation, const QString &uiid) {
        return mScript.when(operation, uiid);
    }
    [[nodiscard]] CallScript::Address &when(const QString &operation, const QString &uiid, qint32 recordNr) {
        return mScript.when(operation, uiid, recordNr);
    }

    // Raises an event at all listeners, in their order.
    void raise(const std::function<void(TransformerEvents &)> &event) { mListeners.raise(event); }
    void raiseProgress(const std::function<void(ProgressEvents &)> &event) { mProgressListeners.raise(event); }

    void AddListener(TransformerEvents *listener) override { mListeners.add(listener); }
    void RemoveListener(TransformerEvents *listener) override { mListeners.remove(listener); }
    void AddProgressListener(ProgressEvents *listener) override { mProgressListeners.add(listener); }
    void RemoveProgressListener(ProgressEvents *listener) override { mProgressListeners.remove(listener); }

    qint32 GetSaveAllowed() override;
    qint32 ResetDatabase() override;
    QStringList GetDatabaseFieldList() override;
    void GetFileDetails(const QString &FileName, QString &RadioModel, QString &DatabaseVersion,
                        QString &ApplicationVersion, QString &Networks, QString &Comment, QString &Reserved1,
                        QString &Reserved2, QString &Reserved3, bool &Result) override;
    QString GetNavigatorRecordName(const QString &UIID) override;
    void AbortComms() override;
    bool FireTrigger(const QString &UIID) override;
    bool GetFormAvailable(const QString &FormKey, const QString &FormText) override;
    bool GetSquirtAvailable() override;
    bool GetProgramAsAvailable() override;
    qint32 GetVersionLevel() override;
    bool GetFormIsDirty() override;
    QString GetDatabaseVersion() override;
    QString GetFileName() override;
    QString GetCurrentFormName() override;
    void SetCurrentFormName(const QString &FormName) override;
    qint32 GetCurrentFormTreeNode() override;
    void SetCurrentFormTreeNode(qint32 Index) override;
    QString GetCurrentTier() override;
    QString GetRadioModel() override;
    QString GetTierName() override;
    bool GetDataIsDirty() override;
    bool GetNewAllowed() override;
    QString InitialiseDatabase() override;
    bool SetAccessLevel(qint32 Level) override;
    void BeginBatchUpdate() override;
    void EndBatchUpdate() override;
    bool ImportRecordByPaste(const QString &GridID, const QString &UIIDList, QWidget *MainWindow,
                             const QString &Reserved, const QString &SelectedRecordsList) override;
    bool ImportRecordByDrop(const QString &GridID, const QString &UIIDList, const QMimeData *Data, QWidget *MainWindow,
                            bool Always) override;
    bool GetTreeNodeHasData(const QString &NodeKey) override;
    void SortColumn(const QString &UIID, bool Ascending) override;
    bool ValidateOnExit() override;
    void AddRecord(const QString &UIID, const QString &GridID, qint32 &RecordNr, bool &OK) override;
    void SaveForm(const QString &TierKey) override;
    void DeleteRecord(const QString &UIID, qint32 RecordNr, bool &OK) override;
    void RefreshFormList() override;
    QString GetIsComboIndex(const QString &UIID) override;
    void GetGridData(const QString &UIIDList, bool Dynamic, XArrayDB &Array, qint32 RecordNr, bool &OK) override;
    QString GetGridCellRaw(const QString &UIID) override;
    bool GetComboItems(const QString &UIID, qint32 RecordNr, XArrayDB &ComboArray, qint32 &eCboType) override;
    qint32 GetFieldVersionLevel(const QString &UIID) override;
    bool GetFieldDisableWhenAbsent(const QString &UIID) override;
    bool GetFieldEnabled(const QString &UIID, qint32 RecordNr) override;
    void GetIDItems(const QString &UIID, qint32 RecordNr, XArrayDB &ComboArray) override;
    QString GetLabel(const QString &UIID) override;
    QString GetNavigatorLabel(const QString &UIID) override;
    QString GetValidationString(const QString &UIID) override;
    QString GetFieldDescription(const QString &UIID) override;
    QVariant GetValue(const QString &UIID, qint32 RecordNr) override;
    qint32 GetNumberOfRecords(const QString &GuideUIID) override;
    qint32 GetHelpID(const QString &UIID) override;
    qint32 GetUIWidth(const QString &UIID) override;
    void FieldGotFocus(const QString &UIID) override;
    void InsertRecord(const QString &UIID, qint32 RecordNr, const QString &GridID, bool &OK) override;
    void FieldLostFocus(const QString &UIID) override;
    void RepeatRecord(const QString &UIID, qint32 RecordNr, const QString &GridID, bool &OK) override;
    void InterrogateRadio() override;
    void ReloadDefaults(const QString &TierKey) override;
    void StartUp() override;
    void ProgramRadio() override;
    void ReadFile(const QString &FileName, qint32 FileFormat, qint32 FileVersion, bool ReadOnly) override;
    void ReadRadio(bool Always, bool &Result) override;
    void SaveFile(const QString &FileName, const QString &FileComment, qint32 Version, bool &Result) override;
    void ChangeTier(const QString &TierKey) override;
    void RevertFormData(const QString &TierKey) override;
    void SetValue(const QString &UIID, const QVariant &Value, qint32 RecordNr, bool Validate, bool &OK) override;
    void FieldExitFocusValue(const QString &UIID, const QVariant &Value, qint32 RecordNr, bool &Result) override;
    void FieldEnterFocusValue(const QString &UIID, const QVariant &Value, qint32 RecordNr, bool &Result) override;
    bool FinalValidate() override;
    void ValidateForm(const QString &FormTypeName, const QString &FormCaption, bool Validate, bool &OK) override;
    void SetDataChanged() override;
    qint32 GetMaxValue(const QString &UIID) override;
    qint32 GetMinValue(const QString &UIID) override;
    Currency GetStepValue(const QString &UIID) override;
    void CopyFieldToTier(const QString &UIID, const QString &TierKey) override;
    void SetCallerVersion(const QString &Version) override;
    QVariant GetSetting(const QString &Key, const QVariant &Default) override;
    void SaveSetting(const QString &Key, const QVariant &Value) override;
    void GetPrintHeader(QString &Left, QString &Right) override;
    void ShowDatabaseDialog(QWidget *Owner) override;
    QString GetFileVersionName() override;
    QString GetFileVersionByIndex(qint32 Index) override;
    QStringList GetFileVersionList() override;
    QString GetDataDirectory() override;
    QString GetFileExtension() override;
    void ShutDown() override;
    void GetTreeFilterTabs(QStringList &TabNames, QHash<QString, QString> &TabToolTips, QStringList &FormList,
                           QStringList &FormDescList, QHash<QString, QVariant> &FormAccessLevels,
                           QHash<QString, QVariant> &FormNetworks, QStringList &FormTypeList) override;
    void SetProviderUpdateUIOnFieldChange(bool On) override;
    bool GetRecordDeletedRefreshNeeded() override;
    bool GetLoadFailed() override;
    QString GetHelpText(const QString &UIID) override;

  private:
    QVariant play(const char *operation, const QVariantList &arguments = {}, const QVariant &fallback = {});

    CallScript mScript;
    ListenerList<TransformerEvents> mListeners;
    ListenerList<ProgressEvents> mProgressListeners;
};
