#include "transformer_component.h"

#include "component_state.h"
#include "dictionary_loader.h"
#include "document_operations.h"
#include "edit_operations.h"
#include "field_queries.h"
#include "form_session.h"
#include "import_operations.h"
#include "list_queries.h"
#include "product_identity.h"
#include "radio_operations.h"
#include "record_operations.h"
#include "recovery_operations.h"
#include "settings_store.h"
#include "tier_copy.h"
#include "tier_operations.h"

#include <QMimeData>

#include <utility>

TransformerComponent::TransformerComponent(const ComponentPlaces &places, std::function<QString()> clipboard)
    : mDictionary(DictionaryLoader::loadCompiledIn()), mState(std::make_unique<ComponentState>(*mDictionary, places)),
      mSettings(std::make_unique<SettingsStore>(places.settingsFile)), mFields(std::make_unique<FieldQueries>(*mState)),
      mLists(std::make_unique<ListQueries>(*mState, *mFields)),
      mEdits(std::make_unique<EditOperations>(*mState, *mFields)),
      mRecords(std::make_unique<RecordOperations>(*mState, *mFields)),
      mImports(std::make_unique<ImportOperations>(*mState, *mFields, *mSettings)),
      mForms(std::make_unique<FormSession>(*mState)), mTiers(std::make_unique<TierOperations>(*mState)),
      mDocuments(std::make_unique<DocumentOperations>(*mState, *mTiers)),
      mRecovery(std::make_unique<RecoveryOperations>(*mState, *mDocuments)),
      mRadio(std::make_unique<RadioOperations>(*mState, *mSettings, *mTiers, *mForms)),
      mClipboard(std::move(clipboard)) {}

TransformerComponent::~TransformerComponent() = default;

void TransformerComponent::AddListener(TransformerEvents *listener) { mState->events.AddListener(listener); }
void TransformerComponent::RemoveListener(TransformerEvents *listener) { mState->events.RemoveListener(listener); }
void TransformerComponent::AddProgressListener(ProgressEvents *listener) {
    mState->events.AddProgressListener(listener);
}
void TransformerComponent::RemoveProgressListener(ProgressEvents *listener) {
    mState->events.RemoveProgressListener(listener);
}

// Fields
QStringList TransformerComponent::GetDatabaseFieldList() { return mFields->GetDatabaseFieldList(); }
QString TransformerComponent::GetNavigatorRecordName(const QString &UIID) {
    return mFields->GetNavigatorRecordName(UIID);
}
QString TransformerComponent::GetNavigatorLabel(const QString &UIID) { return mFields->GetNavigatorLabel(UIID); }
QString TransformerComponent::GetLabel(const QString &UIID) { return mFields->GetLabel(UIID); }
QString TransformerComponent::GetHelpText(const QString &UIID) { return mFields->GetHelpText(UIID); }
QString TransformerComponent::GetValidationString(const QString &UIID) { return mFields->GetValidationString(UIID); }
QString TransformerComponent::GetFieldDescription(const QString &UIID) { return mFields->GetFieldDescription(UIID); }
qint32 TransformerComponent::GetHelpID(const QString &UIID) { return mFields->GetHelpID(UIID); }
qint32 TransformerComponent::GetUIWidth(const QString &UIID) { return mFields->GetUIWidth(UIID); }
qint32 TransformerComponent::GetFieldVersionLevel(const QString &UIID) { return mFields->GetFieldVersionLevel(UIID); }
bool TransformerComponent::GetFieldDisableWhenAbsent(const QString &UIID) {
    return mFields->GetFieldDisableWhenAbsent(UIID);
}
bool TransformerComponent::GetFieldEnabled(const QString &UIID, qint32 RecordNr) {
    return mFields->GetFieldEnabled(UIID, RecordNr);
}
QVariant TransformerComponent::GetValue(const QString &UIID, qint32 RecordNr) {
    return mFields->GetValue(UIID, RecordNr);
}
qint32 TransformerComponent::GetNumberOfRecords(const QString &GuideUIID) {
    return mFields->GetNumberOfRecords(GuideUIID);
}
qint32 TransformerComponent::GetMaxValue(const QString &UIID) { return mFields->GetMaxValue(UIID); }
qint32 TransformerComponent::GetMinValue(const QString &UIID) { return mFields->GetMinValue(UIID); }
Currency TransformerComponent::GetStepValue(const QString &UIID) { return mFields->GetStepValue(UIID); }
void TransformerComponent::FieldGotFocus(const QString &UIID) { mFields->FieldGotFocus(UIID); }
void TransformerComponent::FieldLostFocus(const QString & /*UIID*/) {}

// Lists and grids
QString TransformerComponent::GetIsComboIndex(const QString &UIID) { return mLists->GetIsComboIndex(UIID); }
QString TransformerComponent::GetGridCellRaw(const QString &UIID) { return mLists->GetGridCellRaw(UIID); }
void TransformerComponent::GetGridData(const QString &UIIDList, bool /*Dynamic*/, XArrayDB &Array, qint32 RecordNr,
                                       bool &OK) {
    mLists->GetGridData(UIIDList, Array, RecordNr, OK);
}
bool TransformerComponent::GetComboItems(const QString &UIID, qint32 RecordNr, XArrayDB &ComboArray, qint32 &eCboType) {
    return mLists->GetComboItems(UIID, RecordNr, ComboArray, eCboType);
}
void TransformerComponent::GetIDItems(const QString &UIID, qint32 RecordNr, XArrayDB &ComboArray) {
    mLists->GetIDItems(UIID, RecordNr, ComboArray);
}

// Edits
void TransformerComponent::SetValue(const QString &UIID, const QVariant &Value, qint32 RecordNr, bool /*Validate*/,
                                    bool &OK) {
    mEdits->SetValue(UIID, Value, RecordNr, OK);
    mTiers->tellChangedForms();
}
void TransformerComponent::FieldExitFocusValue(const QString &UIID, const QVariant &Value, qint32 RecordNr,
                                               bool &Result) {
    mEdits->SetValue(UIID, Value, RecordNr, Result);
    mTiers->tellChangedForms();
}
void TransformerComponent::FieldEnterFocusValue(const QString & /*UIID*/, const QVariant & /*Value*/,
                                                qint32 /*RecordNr*/, bool &Result) {
    Result = true;
}
void TransformerComponent::SetDataChanged() { mEdits->SetDataChanged(); }
void TransformerComponent::CopyFieldToTier(const QString &UIID, const QString &TierKey) {
    TierCopy(*mState).copy(UIID, TierKey);
}
void TransformerComponent::SetProviderUpdateUIOnFieldChange(bool On) { mState->updateUiOnFieldChange = On; }
bool TransformerComponent::SetAccessLevel(qint32 Level) {
    const bool known = Level == 80 || Level == 60 || Level == 40 || Level == 20;
    if (known)
        mState->accessLevel = Level;
    return known;
}
bool TransformerComponent::FireTrigger(const QString & /*UIID*/) { return true; }

// Records
void TransformerComponent::AddRecord(const QString &UIID, const QString & /*GridID*/, qint32 &RecordNr, bool &OK) {
    mRecords->AddRecord(UIID, RecordNr, OK);
    mTiers->tellChangedForms();
}
void TransformerComponent::InsertRecord(const QString &UIID, qint32 RecordNr, const QString & /*GridID*/, bool &OK) {
    mRecords->InsertRecord(UIID, RecordNr, OK);
    mTiers->tellChangedForms();
}
void TransformerComponent::RepeatRecord(const QString &UIID, qint32 RecordNr, const QString & /*GridID*/, bool &OK) {
    mRecords->RepeatRecord(UIID, RecordNr, OK);
    mTiers->tellChangedForms();
}
void TransformerComponent::DeleteRecord(const QString &UIID, qint32 RecordNr, bool &OK) {
    mRecords->DeleteRecord(UIID, RecordNr, OK);
    mTiers->tellChangedForms();
}
void TransformerComponent::SortColumn(const QString &UIID, bool Ascending) { mRecords->SortColumn(UIID, Ascending); }
bool TransformerComponent::GetRecordDeletedRefreshNeeded() { return true; }
void TransformerComponent::BeginBatchUpdate() { ++mState->batchDepth; }
void TransformerComponent::EndBatchUpdate() {
    mState->batchDepth = qMax(0, mState->batchDepth - 1);
    mRecords->batchEnded();
}
bool TransformerComponent::ImportRecordByPaste(const QString & /*GridID*/, const QString &UIIDList,
                                               QWidget * /*MainWindow*/, const QString & /*Reserved*/,
                                               const QString &SelectedRecordsList) {
    const bool done = mClipboard && mImports->import(UIIDList, mClipboard(), SelectedRecordsList);
    mTiers->tellChangedForms();
    return done;
}
bool TransformerComponent::ImportRecordByDrop(const QString & /*GridID*/, const QString &UIIDList,
                                              const QMimeData *Data, QWidget * /*MainWindow*/, bool /*Always*/) {
    const bool done = Data != nullptr && mImports->import(UIIDList, Data->text(), QString());
    mTiers->tellChangedForms();
    return done;
}

// Forms
qint32 TransformerComponent::GetSaveAllowed() { return mState->journal.formIsDirty() ? 1 : 0; }
bool TransformerComponent::GetFormIsDirty() { return mState->journal.formIsDirty(); }
void TransformerComponent::SaveForm(const QString &TierKey) { mForms->SaveForm(TierKey); }
void TransformerComponent::RevertFormData(const QString &TierKey) {
    mForms->RevertFormData(TierKey);
    mTiers->tellChangedForms();
}
void TransformerComponent::ValidateForm(const QString &FormTypeName, const QString & /*FormCaption*/, bool Validate,
                                        bool &OK) {
    OK = true;
    if (Validate)
        mForms->ValidateForm(FormTypeName, OK);
}
bool TransformerComponent::FinalValidate() { return mForms->FinalValidate(); }

// Tiers and their forms
QString TransformerComponent::InitialiseDatabase() { return mTiers->InitialiseDatabase(); }
void TransformerComponent::ChangeTier(const QString &TierKey) { mTiers->ChangeTier(TierKey); }
QString TransformerComponent::GetCurrentTier() { return mDictionary->tier(mState->tier()).key; }
QString TransformerComponent::GetTierName() { return mDictionary->tier(mState->tier()).caption; }
QString TransformerComponent::GetRadioModel() { return ProductIdentity::tag(); }
bool TransformerComponent::GetTreeNodeHasData(const QString &NodeKey) { return mTiers->GetTreeNodeHasData(NodeKey); }
void TransformerComponent::RefreshFormList() { mTiers->RefreshFormList(); }
bool TransformerComponent::GetFormAvailable(const QString &FormKey, const QString & /*FormText*/) {
    return mTiers->GetFormAvailable(FormKey);
}
QString TransformerComponent::GetCurrentFormName() { return mTiers->GetCurrentFormName(); }
void TransformerComponent::SetCurrentFormName(const QString &FormName) { mTiers->SetCurrentFormName(FormName); }
qint32 TransformerComponent::GetCurrentFormTreeNode() { return mTiers->GetCurrentFormTreeNode(); }
void TransformerComponent::SetCurrentFormTreeNode(qint32 Index) { mTiers->SetCurrentFormTreeNode(Index); }
void TransformerComponent::GetTreeFilterTabs(QStringList &TabNames, QHash<QString, QString> &TabToolTips,
                                             QStringList &FormList, QStringList &FormDescList,
                                             QHash<QString, QVariant> &FormAccessLevels,
                                             QHash<QString, QVariant> &FormNetworks, QStringList &FormTypeList) {
    TabNames.clear();
    TabToolTips.clear();
    FormTreeLists tree = mTiers->lists();
    FormList = std::move(tree.forms);
    FormDescList = std::move(tree.captions);
    FormAccessLevels = std::move(tree.accessLevels);
    FormNetworks = std::move(tree.networks);
    FormTypeList = std::move(tree.types);
}

// Documents
qint32 TransformerComponent::ResetDatabase() {
    mDocuments->ResetDatabase();
    mTiers->tellChangedForms();
    return 0;
}
void TransformerComponent::GetFileDetails(const QString &FileName, QString &RadioModel, QString &DatabaseVersion,
                                          QString &ApplicationVersion, QString &Networks, QString &Comment,
                                          QString &Reserved1, QString &Reserved2, QString &Reserved3, bool &Result) {
    const std::optional<DataFileHeader> header = mDocuments->GetFileDetails(FileName);
    Result = header.has_value();
    RadioModel = header ? header->radioModel : QString();
    DatabaseVersion = header ? header->databaseVersion : QString();
    ApplicationVersion = header ? header->applicationVersion : QString();
    Networks = header ? QString::number(header->networks) : QString();
    Comment = header ? header->comment : QString();
    Reserved1.clear();
    Reserved2.clear();
    Reserved3.clear();
}
void TransformerComponent::ReadFile(const QString &FileName, qint32 /*FileFormat*/, qint32 /*FileVersion*/,
                                    bool /*ReadOnly*/) {
    mDocuments->ReadFile(FileName);
}
void TransformerComponent::SaveFile(const QString &FileName, const QString &FileComment, qint32 Version, bool &Result) {
    mDocuments->SaveFile(FileName, FileComment, Version, Result);
}
void TransformerComponent::ReloadDefaults(const QString &TierKey) {
    mDocuments->ReloadDefaults(TierKey);
    mTiers->tellChangedForms();
}
QString TransformerComponent::GetFileName() { return mState->fileName; }
bool TransformerComponent::GetDataIsDirty() { return mState->journal.isDirty(); }
bool TransformerComponent::GetNewAllowed() { return true; }
QString TransformerComponent::GetDataDirectory() { return mState->places.dataFolder; }
QString TransformerComponent::GetFileExtension() { return QStringLiteral("k4p"); }
qint32 TransformerComponent::GetVersionLevel() { return mState->current().versionLevel(); }
bool TransformerComponent::GetProgramAsAvailable() {
    return mState->current().versionLevel() > mDictionary->versions().front().level;
}
QString TransformerComponent::GetDatabaseVersion() {
    return mDictionary->versionName(mState->current().versionLevel());
}
QString TransformerComponent::GetFileVersionName() { return mDocuments->GetFileVersionName(); }
QString TransformerComponent::GetFileVersionByIndex(qint32 Index) { return mDocuments->GetFileVersionByIndex(Index); }
QStringList TransformerComponent::GetFileVersionList() { return mDocuments->GetFileVersionList(); }
void TransformerComponent::GetPrintHeader(QString &Left, QString &Right) {
    Left = GetRadioModel();
    Right = GetFileName();
}

// Radio
bool TransformerComponent::GetSquirtAvailable() { return true; }
void TransformerComponent::InterrogateRadio() { mRadio->InterrogateRadio(); }
void TransformerComponent::ReadRadio(bool /*Always*/, bool &Result) { mRadio->ReadRadio(Result); }
void TransformerComponent::ProgramRadio() { mRadio->ProgramRadio(); }
void TransformerComponent::AbortComms() { mRadio->AbortComms(); }

// The run of the program
void TransformerComponent::SetCallerVersion(const QString &Version) {
    mState->callerVersion = Version.section(u'|', 0, 0);
    mState->loadFailed = mState->callerVersion.section(u'.', 0, 0).toInt() != ProductIdentity::versionMajor();
}
bool TransformerComponent::GetLoadFailed() { return mState->loadFailed; }
QVariant TransformerComponent::GetSetting(const QString &Key, const QVariant &Default) {
    return mSettings->value(Key, Default);
}
void TransformerComponent::SaveSetting(const QString &Key, const QVariant &Value) { mSettings->setValue(Key, Value); }
void TransformerComponent::ShowDatabaseDialog(QWidget * /*Owner*/) {}
void TransformerComponent::StartUp() {
    if (!mSettings->damagedFileName().isEmpty())
        mState->events.tell(QStringLiteral("The settings file was damaged; the defaults are used. The damaged file is "
                                           "kept as %0:S."),
                            {mSettings->damagedFileName()});
    mRadio->tellOpenRuns();
    mRecovery->offer();
}
bool TransformerComponent::ValidateOnExit() {
    mState->journal.exitIsKnown();
    return !mState->journal.isDirty();
}
void TransformerComponent::ShutDown() {
    mRecords->close();
    mState->journal.shutDown();
}
