#include "recording_transformer.h"

namespace {
// Rows of cells joined by "|"; the first row tells the number of columns.
void fill(XArrayDB &array, const QVariant &rows) {
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
} // namespace

QVariant RecordingTransformer::play(const char *operation, const QVariantList &arguments, const QVariant &fallback) {
    return mScript.play(QString::fromLatin1(operation), arguments, fallback);
}

qint32 RecordingTransformer::GetSaveAllowed() { return play(__func__).toInt(); }
qint32 RecordingTransformer::ResetDatabase() { return play(__func__).toInt(); }
QStringList RecordingTransformer::GetDatabaseFieldList() { return play(__func__).toStringList(); }
void RecordingTransformer::GetFileDetails(const QString &FileName, QString &RadioModel, QString &DatabaseVersion,
                                          QString &ApplicationVersion, QString &Networks, QString &Comment,
                                          QString &Reserved1, QString &Reserved2, QString &Reserved3, bool &Result) {
    const QStringList details = play(__func__, {FileName}).toStringList();
    QString *const targets[] = {&RadioModel, &DatabaseVersion, &ApplicationVersion, &Networks,
                                &Comment,    &Reserved1,       &Reserved2,          &Reserved3};
    qsizetype position = 0;
    for (QString *target : targets)
        *target = details.value(position++);
    Result = !details.isEmpty();
}

QString RecordingTransformer::GetNavigatorRecordName(const QString &UIID) { return play(__func__, {UIID}).toString(); }
void RecordingTransformer::AbortComms() { play(__func__); }
bool RecordingTransformer::FireTrigger(const QString &UIID) { return play(__func__, {UIID}).toBool(); }
bool RecordingTransformer::GetFormAvailable(const QString &FormKey, const QString &FormText) {
    return play(__func__, {FormKey, FormText}, true).toBool();
}
bool RecordingTransformer::GetSquirtAvailable() { return play(__func__).toBool(); }
bool RecordingTransformer::GetProgramAsAvailable() { return play(__func__).toBool(); }
qint32 RecordingTransformer::GetVersionLevel() { return play(__func__).toInt(); }
bool RecordingTransformer::GetFormIsDirty() { return play(__func__).toBool(); }
QString RecordingTransformer::GetDatabaseVersion() { return play(__func__).toString(); }
QString RecordingTransformer::GetFileName() { return play(__func__).toString(); }
QString RecordingTransformer::GetCurrentFormName() { return play(__func__).toString(); }
void RecordingTransformer::SetCurrentFormName(const QString &FormName) { play(__func__, {FormName}); }
qint32 RecordingTransformer::GetCurrentFormTreeNode() { return play(__func__).toInt(); }
void RecordingTransformer::SetCurrentFormTreeNode(qint32 Index) { play(__func__, {Index}); }
QString RecordingTransformer::GetCurrentTier() { return play(__func__).toString(); }
QString RecordingTransformer::GetRadioModel() { return play(__func__).toString(); }
QString RecordingTransformer::GetTierName() { return play(__func__).toString(); }
bool RecordingTransformer::GetDataIsDirty() { return play(__func__).toBool(); }
bool RecordingTransformer::GetNewAllowed() { return play(__func__, {}, true).toBool(); }
QString RecordingTransformer::InitialiseDatabase() { return play(__func__).toString(); }
bool RecordingTransformer::SetAccessLevel(qint32 Level) { return play(__func__, {Level}, true).toBool(); }
void RecordingTransformer::BeginBatchUpdate() { play(__func__); }
void RecordingTransformer::EndBatchUpdate() { play(__func__); }
bool RecordingTransformer::ImportRecordByPaste(const QString &GridID, const QString &UIIDList, QWidget *MainWindow,
                                               const QString &Reserved, const QString &SelectedRecordsList) {
    return play(__func__, {GridID, UIIDList, MainWindow != nullptr, Reserved, SelectedRecordsList}, true).toBool();
}
bool RecordingTransformer::ImportRecordByDrop(const QString &GridID, const QString &UIIDList, const QMimeData *Data,
                                              QWidget *MainWindow, bool Always) {
    return play(__func__, {GridID, UIIDList, Data != nullptr, MainWindow != nullptr, Always}, true).toBool();
}
bool RecordingTransformer::GetTreeNodeHasData(const QString &NodeKey) { return play(__func__, {NodeKey}).toBool(); }
void RecordingTransformer::SortColumn(const QString &UIID, bool Ascending) { play(__func__, {UIID, Ascending}); }
bool RecordingTransformer::ValidateOnExit() { return play(__func__, {}, true).toBool(); }
void RecordingTransformer::AddRecord(const QString &UIID, const QString &GridID, qint32 &RecordNr, bool &OK) {
    const QVariant answer = play(__func__, {UIID, GridID, RecordNr}, RecordNr);
    OK = answer.typeId() != QMetaType::Bool || answer.toBool();
    if (OK)
        RecordNr = answer.toInt();
}

void RecordingTransformer::SaveForm(const QString &TierKey) { play(__func__, {TierKey}); }
void RecordingTransformer::DeleteRecord(const QString &UIID, qint32 RecordNr, bool &OK) {
    OK = play(__func__, {UIID, RecordNr}, true).toBool();
}
void RecordingTransformer::RefreshFormList() { play(__func__); }
QString RecordingTransformer::GetIsComboIndex(const QString &UIID) { return play(__func__, {UIID}).toString(); }
void RecordingTransformer::GetGridData(const QString &UIIDList, bool Dynamic, XArrayDB &Array, qint32 RecordNr,
                                       bool &OK) {
    const QVariant answer = play(__func__, {UIIDList, Dynamic, RecordNr});
    OK = answer.isValid();
    fill(Array, answer);
}

QString RecordingTransformer::GetGridCellRaw(const QString &UIID) { return play(__func__, {UIID}).toString(); }
bool RecordingTransformer::GetComboItems(const QString &UIID, qint32 RecordNr, XArrayDB &ComboArray, qint32 &eCboType) {
    const QVariant answer = play(__func__, {UIID, RecordNr, eCboType});
    fill(ComboArray, answer);
    return answer.isValid();
}

qint32 RecordingTransformer::GetFieldVersionLevel(const QString &UIID) { return play(__func__, {UIID}).toInt(); }
bool RecordingTransformer::GetFieldDisableWhenAbsent(const QString &UIID) { return play(__func__, {UIID}).toBool(); }
bool RecordingTransformer::GetFieldEnabled(const QString &UIID, qint32 RecordNr) {
    return play(__func__, {UIID, RecordNr}, true).toBool();
}
void RecordingTransformer::GetIDItems(const QString &UIID, qint32 RecordNr, XArrayDB &ComboArray) {
    fill(ComboArray, play(__func__, {UIID, RecordNr}));
}

QString RecordingTransformer::GetLabel(const QString &UIID) { return play(__func__, {UIID}).toString(); }
QString RecordingTransformer::GetNavigatorLabel(const QString &UIID) { return play(__func__, {UIID}).toString(); }
QString RecordingTransformer::GetValidationString(const QString &UIID) { return play(__func__, {UIID}).toString(); }
QString RecordingTransformer::GetFieldDescription(const QString &UIID) { return play(__func__, {UIID}).toString(); }
QVariant RecordingTransformer::GetValue(const QString &UIID, qint32 RecordNr) {
    return play(__func__, {UIID, RecordNr}, QString());
}

qint32 RecordingTransformer::GetNumberOfRecords(const QString &GuideUIID) {
    return play(__func__, {GuideUIID}).toInt();
}
qint32 RecordingTransformer::GetHelpID(const QString &UIID) { return play(__func__, {UIID}).toInt(); }
qint32 RecordingTransformer::GetUIWidth(const QString &UIID) { return play(__func__, {UIID}).toInt(); }
void RecordingTransformer::FieldGotFocus(const QString &UIID) { play(__func__, {UIID}); }
void RecordingTransformer::InsertRecord(const QString &UIID, qint32 RecordNr, const QString &GridID, bool &OK) {
    OK = play(__func__, {UIID, RecordNr, GridID}, true).toBool();
}
void RecordingTransformer::FieldLostFocus(const QString &UIID) { play(__func__, {UIID}); }
void RecordingTransformer::RepeatRecord(const QString &UIID, qint32 RecordNr, const QString &GridID, bool &OK) {
    OK = play(__func__, {UIID, RecordNr, GridID}, true).toBool();
}
void RecordingTransformer::InterrogateRadio() { play(__func__); }
void RecordingTransformer::ReloadDefaults(const QString &TierKey) { play(__func__, {TierKey}); }
void RecordingTransformer::StartUp() { play(__func__); }
void RecordingTransformer::ProgramRadio() { play(__func__); }
void RecordingTransformer::ReadFile(const QString &FileName, qint32 FileFormat, qint32 FileVersion, bool ReadOnly) {
    play(__func__, {FileName, FileFormat, FileVersion, ReadOnly});
}
void RecordingTransformer::ReadRadio(bool Always, bool &Result) { Result = play(__func__, {Always}, true).toBool(); }
void RecordingTransformer::SaveFile(const QString &FileName, const QString &FileComment, qint32 Version, bool &Result) {
    Result = play(__func__, {FileName, FileComment, Version}, true).toBool();
}
void RecordingTransformer::ChangeTier(const QString &TierKey) { play(__func__, {TierKey}); }
void RecordingTransformer::RevertFormData(const QString &TierKey) { play(__func__, {TierKey}); }
void RecordingTransformer::SetValue(const QString &UIID, const QVariant &Value, qint32 RecordNr, bool Validate,
                                    bool &OK) {
    OK = play(__func__, {UIID, Value, RecordNr, Validate}, true).toBool();
}
void RecordingTransformer::FieldExitFocusValue(const QString &UIID, const QVariant &Value, qint32 RecordNr,
                                               bool &Result) {
    Result = play(__func__, {UIID, Value, RecordNr}, true).toBool();
}
void RecordingTransformer::FieldEnterFocusValue(const QString &UIID, const QVariant &Value, qint32 RecordNr,
                                                bool &Result) {
    Result = play(__func__, {UIID, Value, RecordNr}, true).toBool();
}
bool RecordingTransformer::FinalValidate() { return play(__func__, {}, true).toBool(); }
void RecordingTransformer::ValidateForm(const QString &FormTypeName, const QString &FormCaption, bool Validate,
                                        bool &OK) {
    OK = play(__func__, {FormTypeName, FormCaption, Validate}, true).toBool();
}
void RecordingTransformer::SetDataChanged() { play(__func__); }
qint32 RecordingTransformer::GetMaxValue(const QString &UIID) { return play(__func__, {UIID}).toInt(); }
qint32 RecordingTransformer::GetMinValue(const QString &UIID) { return play(__func__, {UIID}).toInt(); }
Currency RecordingTransformer::GetStepValue(const QString &UIID) {
    const QVariant answer = play(__func__, {UIID}, 0);
    return answer.canConvert<Currency>() ? answer.value<Currency>() : Currency::fromDouble(answer.toDouble());
}

void RecordingTransformer::CopyFieldToTier(const QString &UIID, const QString &TierKey) {
    play(__func__, {UIID, TierKey});
}
void RecordingTransformer::SetCallerVersion(const QString &Version) { play(__func__, {Version}); }
QVariant RecordingTransformer::GetSetting(const QString &Key, const QVariant &Default) {
    return play(__func__, {Key, Default}, Default);
}

void RecordingTransformer::SaveSetting(const QString &Key, const QVariant &Value) { play(__func__, {Key, Value}); }
void RecordingTransformer::GetPrintHeader(QString &Left, QString &Right) {
    const QStringList texts = play(__func__).toStringList();
    Left = texts.value(0);
    Right = texts.value(1);
}

void RecordingTransformer::ShowDatabaseDialog(QWidget *Owner) { play(__func__, {Owner != nullptr}); }
QString RecordingTransformer::GetFileVersionName() { return play(__func__).toString(); }
QString RecordingTransformer::GetFileVersionByIndex(qint32 Index) { return play(__func__, {Index}).toString(); }
QStringList RecordingTransformer::GetFileVersionList() { return play(__func__).toStringList(); }
QString RecordingTransformer::GetDataDirectory() { return play(__func__).toString(); }
QString RecordingTransformer::GetFileExtension() { return play(__func__).toString(); }
void RecordingTransformer::ShutDown() { play(__func__); }
void RecordingTransformer::GetTreeFilterTabs(QStringList &TabNames, QHash<QString, QString> &TabToolTips,
                                             QStringList &FormList, QStringList &FormDescList,
                                             QHash<QString, QVariant> &FormAccessLevels,
                                             QHash<QString, QVariant> &FormNetworks, QStringList &FormTypeList) {
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

void RecordingTransformer::SetProviderUpdateUIOnFieldChange(bool On) { play(__func__, {On}); }
bool RecordingTransformer::GetRecordDeletedRefreshNeeded() { return play(__func__).toBool(); }
bool RecordingTransformer::GetLoadFailed() { return play(__func__).toBool(); }
QString RecordingTransformer::GetHelpText(const QString &UIID) { return play(__func__, {UIID}).toString(); }
