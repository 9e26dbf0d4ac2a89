#pragma once

#include "component_places.h"
#include "dictionary.h"
#include "transformer.h"

#include <functional>
#include <memory>

class ComponentState;
class DocumentOperations;
class EditOperations;
class FieldQueries;
class FormSession;
class ImportOperations;
class ListQueries;
class RadioOperations;
class RecordOperations;
class RecoveryOperations;
class SettingsStore;
class TierOperations;

// The component: every operation of the contract as a call of the collaborator whose matter it is. Errors travel to the
// caller as RunTimeError.
class TransformerComponent : public Transformer {
  public:
    // clipboard: gives the text that ImportRecordByPaste takes; none pastes nothing.
    explicit TransformerComponent(const ComponentPlaces &places, std::function<QString()> clipboard = {});
    ~TransformerComponent() override;

    // For programs that are built together with the component. Both live as long as it does.
    [[nodiscard]] const Dictionary &dictionary() const { return *mDictionary; }
    [[nodiscard]] ComponentState &state() { return *mState; }
    [[nodiscard]] const RadioOperations &radio() const { return *mRadio; }

    void AddListener(TransformerEvents *listener) override;
    void RemoveListener(TransformerEvents *listener) override;
    void AddProgressListener(ProgressEvents *listener) override;
    void RemoveProgressListener(ProgressEvents *listener) override;
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
    std::unique_ptr<const Dictionary> mDictionary;
    std::unique_ptr<ComponentState> mState;
    std::unique_ptr<SettingsStore> mSettings;
    std::unique_ptr<FieldQueries> mFields;
    std::unique_ptr<ListQueries> mLists;
    std::unique_ptr<EditOperations> mEdits;
    std::unique_ptr<RecordOperations> mRecords;
    std::unique_ptr<ImportOperations> mImports;
    std::unique_ptr<FormSession> mForms;
    std::unique_ptr<TierOperations> mTiers;
    std::unique_ptr<DocumentOperations> mDocuments;
    std::unique_ptr<RecoveryOperations> mRecovery;
    std::unique_ptr<RadioOperations> mRadio;
    std::function<QString()> mClipboard;
};
