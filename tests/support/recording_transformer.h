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

    qint32 GetSaveAllowed() override { return play(__func__).toInt(); }
    qint32 ResetDatabase() override { return play(__func__).toInt(); }
    QStringList GetDatabaseFieldList() override { return play(__func__).toStringList(); }
    void GetFileDetails(const QString &FileName, QString &RadioModel, QString &DatabaseVersion,
                        QString &ApplicationVersion, QString &Networks, QString &Comment, QString &Reserved1,
                        QString &Reserved2, QString &Reserved3, bool &Result) override {
        const QStringList details = play(__func__, {FileName}).toStringList();
        QString *const targets[] = {&RadioModel, &DatabaseVersion, &ApplicationVersion, &Networks,
                                    &Comment,    &Reserved1,       &Reserved2,          &Reserved3};
        qsizetype position = 0;
        for (QString *target : targets)
            *target = details.value(position++);
        Result = !details.isEmpty();
    }
    QString GetNavigatorRecordName(const QString &UIID) override { return play(__func__, {UIID}).toString(); }
    void AbortComms() override { play(__func__); }
    bool FireTrigger(const QString &UIID) override { return play(__func__, {UIID}).toBool(); }
    bool GetFormAvailable(const QString &FormKey, const QString &FormText) override {
        return play(__func__, {FormKey, FormText}, true).toBool();
    }
    bool GetSquirtAvailable() override { return play(__func__).toBool(); }
    bool GetProgramAsAvailable() override { return play(__func__).toBool(); }
    qint32 GetVersionLevel() override { return play(__func__).toInt(); }
    bool GetFormIsDirty() override { return play(__func__).toBool(); }
    QString GetDatabaseVersion() override { return play(__func__).toString(); }
    QString GetFileName() override { return play(__func__).toString(); }
    QString GetCurrentFormName() override { return play(__func__).toString(); }
    void SetCurrentFormName(const QString &FormName) override { play(__func__, {FormName}); }
    qint32 GetCurrentFormTreeNode() override { return play(__func__).toInt(); }
    void SetCurrentFormTreeNode(qint32 Index) override { play(__func__, {Index}); }
    QString GetCurrentTier() override { return play(__func__).toString(); }
    QString GetRadioModel() override { return play(__func__).toString(); }
    QString GetTierName() override { return play(__func__).toString(); }
    bool GetDataIsDirty() override { return play(__func__).toBool(); }
    bool GetNewAllowed() override { return play(__func__, {}, true).toBool(); }
    QString InitialiseDatabase() override { return play(__func__).toString(); }
    bool SetAccessLevel(qint32 Level) override { return play(__func__, {Level}, true).toBool(); }
    void BeginBatchUpdate() override { play(__func__); }
    void EndBatchUpdate() override { play(__func__); }
    bool ImportRecordByPaste(const QString &GridID, const QString &UIIDList, QWidget *MainWindow,
                             const QString &Reserved, const QString &SelectedRecordsList) override {
        return play(__func__, {GridID, UIIDList, MainWindow != nullptr, Reserved, SelectedRecordsList}, true).toBool();
    }
    bool ImportRecordByDrop(const QString &GridID, const QString &UIIDList, const QMimeData *Data, QWidget *MainWindow,
                            bool Always) override {
        return play(__func__, {GridID, UIIDList, Data != nullptr, MainWindow != nullptr, Always}, true).toBool();
    }
    bool GetTreeNodeHasData(const QString &NodeKey) override { return play(__func__, {NodeKey}).toBool(); }
    void SortColumn(const QString &UIID, bool Ascending) override { play(__func__, {UIID, Ascending}); }
    bool ValidateOnExit() override { return play(__func__, {}, true).toBool(); }
    void AddRecord(const QString &UIID, const QString &GridID, qint32 &RecordNr, bool &OK) override {
        const QVariant answer = play(__func__, {UIID, GridID, RecordNr}, RecordNr);
        OK = answer.typeId() != QMetaType::Bool || answer.toBool();
        if (OK)
            RecordNr = answer.toInt();
    }
    void SaveForm(const QString &TierKey) override { play(__func__, {TierKey}); }
    void DeleteRecord(const QString &UIID, qint32 RecordNr, bool &OK) override {
        OK = play(__func__, {UIID, RecordNr}, true).toBool();
    }
    void RefreshFormList() override { play(__func__); }
    QString GetIsComboIndex(const QString &UIID) override { return play(__func__, {UIID}).toString(); }
    void GetGridData(const QString &UIIDList, bool Dynamic, XArrayDB &Array, qint32 RecordNr, bool &OK) override {
        const QVariant answer = play(__func__, {UIIDList, Dynamic, RecordNr});
        OK = answer.isValid();
        fill(Array, answer);
    }
    QString GetGridCellRaw(const QString &UIID) override { return play(__func__, {UIID}).toString(); }
    bool GetComboItems(const QString &UIID, qint32 RecordNr, XArrayDB &ComboArray, qint32 &eCboType) override {
        const QVariant answer = play(__func__, {UIID, RecordNr, eCboType});
        fill(ComboArray, answer);
        return answer.isValid();
    }
    qint32 GetFieldVersionLevel(const QString &UIID) override { return play(__func__, {UIID}).toInt(); }
    bool GetFieldDisableWhenAbsent(const QString &UIID) override { return play(__func__, {UIID}).toBool(); }
    bool GetFieldEnabled(const QString &UIID, qint32 RecordNr) override {
        return play(__func__, {UIID, RecordNr}, true).toBool();
    }
    void GetIDItems(const QString &UIID, qint32 RecordNr, XArrayDB &ComboArray) override {
        fill(ComboArray, play(__func__, {UIID, RecordNr}));
    }
    QString GetLabel(const QString &UIID) override { return play(__func__, {UIID}).toString(); }
    QString GetNavigatorLabel(const QString &UIID) override { return play(__func__, {UIID}).toString(); }
    QString GetValidationString(const QString &UIID) override { return play(__func__, {UIID}).toString(); }
    QString GetFieldDescription(const QString &UIID) override { return play(__func__, {UIID}).toString(); }
    QVariant GetValue(const QString &UIID, qint32 RecordNr) override {
        return play(__func__, {UIID, RecordNr}, QString());
    }
    qint32 GetNumberOfRecords(const QString &GuideUIID) override { return play(__func__, {GuideUIID}).toInt(); }
    qint32 GetHelpID(const QString &UIID) override { return play(__func__, {UIID}).toInt(); }
    qint32 GetUIWidth(const QString &UIID) override { return play(__func__, {UIID}).toInt(); }
    void FieldGotFocus(const QString &UIID) override { play(__func__, {UIID}); }
    void InsertRecord(const QString &UIID, qint32 RecordNr, const QString &GridID, bool &OK) override {
        OK = play(__func__, {UIID, RecordNr, GridID}, true).toBool();
    }
    void FieldLostFocus(const QString &UIID) override { play(__func__, {UIID}); }
    void RepeatRecord(const QString &UIID, qint32 RecordNr, const QString &GridID, bool &OK) override {
        OK = play(__func__, {UIID, RecordNr, GridID}, true).toBool();
    }
    void InterrogateRadio() override { play(__func__); }
    void ReloadDefaults(const QString &TierKey) override { play(__func__, {TierKey}); }
    void StartUp() override { play(__func__); }
    void ProgramRadio() override { play(__func__); }
    void ReadFile(const QString &FileName, qint32 FileFormat, qint32 FileVersion, bool ReadOnly) override {
        play(__func__, {FileName, FileFormat, FileVersion, ReadOnly});
    }
    void ReadRadio(bool Always, bool &Result) override { Result = play(__func__, {Always}, true).toBool(); }
    void SaveFile(const QString &FileName, const QString &FileComment, qint32 Version, bool &Result) override {
        Result = play(__func__, {FileName, FileComment, Version}, true).toBool();
    }
    void ChangeTier(const QString &TierKey) override { play(__func__, {TierKey}); }
    void RevertFormData(const QString &TierKey) override { play(__func__, {TierKey}); }
    void SetValue(const QString &UIID, const QVariant &Value, qint32 RecordNr, bool Validate, bool &OK) override {
        OK = play(__func__, {UIID, Value, RecordNr, Validate}, true).toBool();
    }
    void FieldExitFocusValue(const QString &UIID, const QVariant &Value, qint32 RecordNr, bool &Result) override {
        Result = play(__func__, {UIID, Value, RecordNr}, true).toBool();
    }
    void FieldEnterFocusValue(const QString &UIID, const QVariant &Value, qint32 RecordNr, bool &Result) override {
        Result = play(__func__, {UIID, Value, RecordNr}, true).toBool();
    }
    bool FinalValidate() override { return play(__func__, {}, true).toBool(); }
    void ValidateForm(const QString &FormTypeName, const QString &FormCaption, bool Validate, bool &OK) override {
        OK = play(__func__, {FormTypeName, FormCaption, Validate}, true).toBool();
    }
    void SetDataChanged() override { play(__func__); }
    qint32 GetMaxValue(const QString &UIID) override { return play(__func__, {UIID}).toInt(); }
    qint32 GetMinValue(const QString &UIID) override { return play(__func__, {UIID}).toInt(); }
    Currency GetStepValue(const QString &UIID) override {
        const QVariant answer = play(__func__, {UIID}, 0);
        return answer.canConvert<Currency>() ? answer.value<Currency>() : Currency::fromDouble(answer.toDouble());
    }
    void CopyFieldToTier(const QString &UIID, const QString &TierKey) override { play(__func__, {UIID, TierKey}); }
    void SetCallerVersion(const QString &Version) override { play(__func__, {Version}); }
    QVariant GetSetting(const QString &Key, const QVariant &Default) override {
        return play(__func__, {Key, Default}, Default);
    }
    void SaveSetting(const QString &Key, const QVariant &Value) override { play(__func__, {Key, Value}); }
    void GetPrintHeader(QString &Left, QString &Right) override {
        const QStringList texts = play(__func__).toStringList();
        Left = texts.value(0);
        Right = texts.value(1);
    }
    void ShowDatabaseDialog(QWidget *Owner) override { play(__func__, {Owner != nullptr}); }
    QString GetFileVersionName() override { return play(__func__).toString(); }
    QString GetFileVersionByIndex(qint32 Index) override { return play(__func__, {Index}).toString(); }
    QStringList GetFileVersionList() override { return play(__func__).toStringList(); }
    QString GetDataDirectory() override { return play(__func__).toString(); }
    QString GetFileExtension() override { return play(__func__).toString(); }
    void ShutDown() override { play(__func__); }
    void GetTreeFilterTabs(QStringList &TabNames, QHash<QString, QString> &TabToolTips, QStringList &FormList,
                           QStringList &FormDescList, QHash<QString, QVariant> &FormAccessLevels,
                           QHash<QString, QVariant> &FormNetworks, QStringList &FormTypeList) override {
        const QVariantList answer = play(__func__).toList();
        TabNames = answer.value(0).toStringList();
        const QVariantHash tips = answer.value(1).toHash();
        for (auto tip = tips.begin(); tip != tips.end(); ++tip)
            TabToolTips.insert(tip.key(), tip.value().toString());
        FormList = answer.value(2).toStringList();
        FormDescList = answer.value(3).toStringList();
        FormAccessLevels = answer.value(4).toHash();
        FormNetworks = answer.value(5).toHash();
        FormTypeList = answer.value(6).toStringList();
    }
    void SetProviderUpdateUIOnFieldChange(bool On) override { play(__func__, {On}); }
    bool GetRecordDeletedRefreshNeeded() override { return play(__func__).toBool(); }
    bool GetLoadFailed() override { return play(__func__).toBool(); }
    QString GetHelpText(const QString &UIID) override { return play(__func__, {UIID}).toString(); }

  private:
    // Rows of cells joined by "|"; the first row tells the number of columns.
    static void fill(XArrayDB &array, const QVariant &rows) {
        const QStringList lines = rows.toStringList();
        array.Clear();
        if (lines.isEmpty())
            return;
        array.ReDim(qint32(lines.size()) - 1, qint32(lines.first().count(u'|')));
        for (qint32 row = 0; row <= array.UpperBound(1); ++row) {
            const QStringList cells = lines.at(row).split(u'|');
            for (qint32 column = 0; column <= array.UpperBound(2); ++column)
                array.SetValue(row, column, cells.value(column));
        }
    }

    QVariant play(const char *operation, const QVariantList &arguments = {}, const QVariant &fallback = {}) {
        return mScript.play(QString::fromLatin1(operation), arguments, fallback);
    }

    CallScript mScript;
    ListenerList<TransformerEvents> mListeners;
    ListenerList<ProgressEvents> mProgressListeners;
};
