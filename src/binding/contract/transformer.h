#pragma once

#include "currency.h"
#include "progress_events.h"
#include "transformer_events.h"
#include "xarray_db.h"

#include <QHash>
#include <QString>
#include <QStringList>
#include <QVariant>

class QMimeData;
class QWidget;

// The component that alone knows the radio: data model, rules, files, settings and wire protocol. One object a process,
// made first and released last; no call after ShutDown.
//
// Terms
//   UIID       identifies one field of the data model, compared case-sensitively.
//   UIID list  UIIDs joined by "|".
//   RecordNr   1-based number of a record in a repeating structure; fields outside one take 0 and 1 alike. Child
//              structures (members of a group, bursts of a system) count within the parent at its stored position.
//   Value      text fields: text; combos: the list index, or the item's stored value where GetIsComboIndex gives a
//              list; check boxes 0 or 1; ID trackers: the ID as text; sliders: a number.
//   "Undefined" GetValue's answer where there is no value at present, for example for a record that does not exist.
//   TierKey    one of the keys in the string that InitialiseDatabase returns; each tier has its own values.
//
// Errors. A refusal is a false result, after the component itself has told the user through TransformerEvents_MsgBox.
// Anything else raises a RunTimeError, and out arguments are then not to be read. An unknown UIID is no error: the
// component raises TransformerEvents_UIIDNotFound and answers "Undefined" (GetValue), "" , 0 or false.
//
// Re-entry. Any event may be raised inside any operation, before it returns.
class Transformer {
  public:
    virtual ~Transformer() = default;

    // The event source. Listeners are not owned and hear events in the order of their registration; one may leave
    // during an event. Progress events go to their own listeners.
    virtual void AddListener(TransformerEvents *listener) = 0;
    virtual void RemoveListener(TransformerEvents *listener) = 0;
    virtual void AddProgressListener(ProgressEvents *listener) = 0;
    virtual void RemoveProgressListener(ProgressEvents *listener) = 0;

    // 1: the open form has changes that can be reverted, validated, accepted and rejected; any other value: it has not.
    virtual qint32 GetSaveAllowed() = 0;
    // Every tier back to its defaults.
    virtual qint32 ResetDatabase() = 0;
    virtual QStringList GetDatabaseFieldList() = 0;
    // The header of a data file, without loading it. Reserved1 to Reserved3 come back empty. Result false: not a data
    // file, and the other arguments are empty. Networks is a number as text.
    virtual void GetFileDetails(const QString &FileName, QString &RadioModel, QString &DatabaseVersion,
                                QString &ApplicationVersion, QString &Networks, QString &Comment, QString &Reserved1,
                                QString &Reserved2, QString &Reserved3, bool &Result) = 0;
    // Second half of a navigator's label, for example "Channels".
    virtual QString GetNavigatorRecordName(const QString &UIID) = 0;
    // Ends a running radio operation; nothing if none runs.
    virtual void AbortComms() = 0;
    virtual bool FireTrigger(const QString &UIID) = 0;
    // Key and tree text of the form to be opened. False refuses it.
    virtual bool GetFormAvailable(const QString &FormKey, const QString &FormText) = 0;
    virtual bool GetSquirtAvailable() = 0;
    // True while the data can be stored as an older version too; SetEnabledProperty then compares version levels.
    virtual bool GetProgramAsAvailable() = 0;
    virtual qint32 GetVersionLevel() = 0;
    virtual bool GetFormIsDirty() = 0;
    virtual QString GetDatabaseVersion() = 0;
    // Full path of the loaded file, empty when none is.
    virtual QString GetFileName() = 0;
    // Tree text and 1-based tree index of the form that counts as current in the current tier; "" and 0 when none.
    virtual QString GetCurrentFormName() = 0;
    virtual void SetCurrentFormName(const QString &FormName) = 0;
    virtual qint32 GetCurrentFormTreeNode() = 0;
    virtual void SetCurrentFormTreeNode(qint32 Index) = 0;
    virtual QString GetCurrentTier() = 0;
    virtual QString GetRadioModel() = 0;
    virtual QString GetTierName() = 0;
    virtual bool GetDataIsDirty() = 0;
    virtual bool GetNewAllowed() = 0;
    // The tier list: for each tier "<unused>|<caption>|<key>", all joined by "|".
    virtual QString InitialiseDatabase() = 0;
    // 80, 60, 40 or 20.
    virtual bool SetAccessLevel(qint32 Level) = 0;
    virtual void BeginBatchUpdate() = 0;
    virtual void EndBatchUpdate() = 0;
    // Tab-separated rows of the clipboard into a grid. SelectedRecordsList: record numbers joined by "|", may be empty.
    virtual bool ImportRecordByPaste(const QString &GridID, const QString &UIIDList, QWidget *MainWindow,
                                     const QString &Reserved, const QString &SelectedRecordsList) = 0;
    virtual bool ImportRecordByDrop(const QString &GridID, const QString &UIIDList, const QMimeData *Data,
                                    QWidget *MainWindow, bool Always) = 0;
    virtual bool GetTreeNodeHasData(const QString &NodeKey) = 0;
    virtual void SortColumn(const QString &UIID, bool Ascending) = 0;
    // False: something would be lost.
    virtual bool ValidateOnExit() = 0;
    // A new record at the end; RecordNr 0 asks for the number, which comes back.
    virtual void AddRecord(const QString &UIID, const QString &GridID, qint32 &RecordNr, bool &OK) = 0;
    virtual void SaveForm(const QString &TierKey) = 0;
    virtual void DeleteRecord(const QString &UIID, qint32 RecordNr, bool &OK) = 0;
    // Raises TransformerEvents_EnableDisableFormItem for the forms of the tree.
    virtual void RefreshFormList() = 0;
    // The stored values of a combo's items joined by "|"; "" when the list index is what is stored.
    virtual QString GetIsComboIndex(const QString &UIID) = 0;
    // RecordNr 0: all records, a row each. Else the one row of that record. OK false: nothing filled.
    virtual void GetGridData(const QString &UIIDList, bool Dynamic, XArrayDB &Array, qint32 RecordNr, bool &OK) = 0;
    // The item texts of a combo column joined by "|".
    virtual QString GetGridCellRaw(const QString &UIID) = 0;
    // Fills the list and its scope (2: the list differs by record). False: the field has no list.
    virtual bool GetComboItems(const QString &UIID, qint32 RecordNr, XArrayDB &ComboArray, qint32 &eCboType) = 0;
    virtual qint32 GetFieldVersionLevel(const QString &UIID) = 0;
    virtual bool GetFieldDisableWhenAbsent(const QString &UIID) = 0;
    virtual bool GetFieldEnabled(const QString &UIID, qint32 RecordNr) = 0;
    virtual void GetIDItems(const QString &UIID, qint32 RecordNr, XArrayDB &ComboArray) = 0;
    // "" : the caption of the form's design stays.
    virtual QString GetLabel(const QString &UIID) = 0;
    virtual QString GetNavigatorLabel(const QString &UIID) = 0;
    // The characters that may be typed; "" for all.
    virtual QString GetValidationString(const QString &UIID) = 0;
    // The unit; "units" is not shown.
    virtual QString GetFieldDescription(const QString &UIID) = 0;
    virtual QVariant GetValue(const QString &UIID, qint32 RecordNr) = 0;
    virtual qint32 GetNumberOfRecords(const QString &GuideUIID) = 0;
    virtual qint32 GetHelpID(const QString &UIID) = 0;
    // In characters.
    virtual qint32 GetUIWidth(const QString &UIID) = 0;
    virtual void FieldGotFocus(const QString &UIID) = 0;
    virtual void InsertRecord(const QString &UIID, qint32 RecordNr, const QString &GridID, bool &OK) = 0;
    virtual void FieldLostFocus(const QString &UIID) = 0;
    // A copy of the record behind it.
    virtual void RepeatRecord(const QString &UIID, qint32 RecordNr, const QString &GridID, bool &OK) = 0;
    virtual void InterrogateRadio() = 0;
    virtual void ReloadDefaults(const QString &TierKey) = 0;
    // Offers recovered work; raises TransformerEvents_ChangeToTier only if it is taken.
    virtual void StartUp() = 0;
    virtual void ProgramRadio() = 0;
    // Raises TransformerEvents_ChangeToTier for the file's tier. A failure has been told and changes nothing.
    virtual void ReadFile(const QString &FileName, qint32 FileFormat, qint32 FileVersion, bool ReadOnly) = 0;
    virtual void ReadRadio(bool Always, bool &Result) = 0;
    // Version: 0 the data's own, else an index into GetFileVersionList from 1.
    virtual void SaveFile(const QString &FileName, const QString &FileComment, qint32 Version, bool &Result) = 0;
    virtual void ChangeTier(const QString &TierKey) = 0;
    virtual void RevertFormData(const QString &TierKey) = 0;
    // Raises the updates and enables of dependent fields before it returns. OK false: refused, and said why.
    virtual void SetValue(const QString &UIID, const QVariant &Value, qint32 RecordNr, bool Validate, bool &OK) = 0;
    virtual void FieldExitFocusValue(const QString &UIID, const QVariant &Value, qint32 RecordNr, bool &Result) = 0;
    virtual void FieldEnterFocusValue(const QString &UIID, const QVariant &Value, qint32 RecordNr, bool &Result) = 0;
    virtual bool FinalValidate() = 0;
    virtual void ValidateForm(const QString &FormTypeName, const QString &FormCaption, bool Validate, bool &OK) = 0;
    virtual void SetDataChanged() = 0;
    virtual qint32 GetMaxValue(const QString &UIID) = 0;
    virtual qint32 GetMinValue(const QString &UIID) = 0;
    virtual Currency GetStepValue(const QString &UIID) = 0;
    // Copies from the current tier.
    virtual void CopyFieldToTier(const QString &UIID, const QString &TierKey) = 0;
    // "a.b.c.d|tag".
    virtual void SetCallerVersion(const QString &Version) = 0;
    // Keys are compared without regard to case.
    virtual QVariant GetSetting(const QString &Key, const QVariant &Default) = 0;
    virtual void SaveSetting(const QString &Key, const QVariant &Value) = 0;
    virtual void GetPrintHeader(QString &Left, QString &Right) = 0;
    virtual void ShowDatabaseDialog(QWidget *Owner) = 0;
    // Of the data's own version; by index from 1; all. Each entry is shown from behind its first ".".
    virtual QString GetFileVersionName() = 0;
    virtual QString GetFileVersionByIndex(qint32 Index) = 0;
    virtual QStringList GetFileVersionList() = 0;
    virtual QString GetDataDirectory() = 0;
    // Without a point.
    virtual QString GetFileExtension() = 0;
    virtual void ShutDown() = 0;
    // The data of TransformerEvents_ChangeToTier for the present tier. TabToolTips is keyed by tab name.
    virtual void GetTreeFilterTabs(QStringList &TabNames, QHash<QString, QString> &TabToolTips, QStringList &FormList,
                                   QStringList &FormDescList, QHash<QString, QVariant> &FormAccessLevels,
                                   QHash<QString, QVariant> &FormNetworks, QStringList &FormTypeList) = 0;
    virtual void SetProviderUpdateUIOnFieldChange(bool On) = 0;
    virtual bool GetRecordDeletedRefreshNeeded() = 0;
    // True: something that the last step needed could not be loaded.
    virtual bool GetLoadFailed() = 0;

    // Untranslated English help of a field; "" for an unknown UIID.
    virtual QString GetHelpText(const QString &UIID) = 0;
};
