#include "walked_component.h"

#include "value_text.h"

#include <algorithm>

WalkedComponent::WalkedComponent(const ComponentPlaces &places, std::function<QString()> clipboard,
                                 Campaign::Tally &tally)
    : TransformerComponent(places, std::move(clipboard)), mTally(tally), mModel(state()) {
    onEvent = [this](const QString & /*line*/) { clear(); };
    AddListener(this);
}

void WalkedComponent::count(const QString &kind, bool accepted) {
    mTally.add(accepted ? kind : kind + QStringLiteral(" refused"));
}

RecordAddress WalkedComponent::addressOf(const QString &uiid, qint32 recordNr) {
    const RecordStructure *structure = state().findStructure(uiid);
    return structure == nullptr ? RecordAddress() : state().address(structure->index, recordNr);
}

QStringList WalkedComponent::differences() {
    constexpr qsizetype kToldAtMost = 5;
    QStringList result = mModel.differences();
    for (const FieldDefinition &field : dictionary().fields()) {
        const RecordStructure &structure = dictionary().structure(field.structure);
        const qint32 count = structure.isRadio() ? 1 : GetNumberOfRecords(structure.guide);
        for (qint32 record = 1; field.isStored() && record <= count; ++record) {
            const QString told = ValueText::of(GetValue(field.id, record));
            if (!PlainModel::isSame(told, mModel.value(field, state().address(field.structure, record))))
                result << QStringLiteral("GetValue(%1, %2): %3").arg(field.id).arg(record).arg(told);
        }
    }
    return result.mid(0, kToldAtMost);
}

void WalkedComponent::noteSettings() {
    for (Setting &setting : mSettings) {
        if (setting.field != nullptr && !setting.noted)
            mModel.note(*setting.field, setting.record, setting.value);
        setting.noted = true;
    }
}

void WalkedComponent::SetValue(const QString &UIID, const QVariant &Value, qint32 RecordNr, bool Validate, bool &OK) {
    const Setting setting{dictionary().find(UIID), addressOf(UIID, RecordNr), ValueText::of(Value)};
    const auto isSame = [&setting](const Setting &outer) {
        return outer.field == setting.field && outer.record == setting.record && outer.value == setting.value;
    };
    if (setting.field != nullptr && std::ranges::any_of(mSettings, isSame))
        mEchoes << UIID + u' ' + setting.value;
    mSettings.push_back(setting);
    TransformerComponent::SetValue(UIID, Value, RecordNr, Validate, OK);
    if (OK)
        noteSettings();
    mSettings.pop_back();
    count(setting.field == nullptr ? QStringLiteral("record moves") : QStringLiteral("values"), OK);
}

void WalkedComponent::inserted(const QString &uiid, RecordAddress record, const QString &kind, bool accepted) {
    count(kind, accepted);
    if (accepted)
        mModel.insert(state().findStructure(uiid)->index, record);
}

void WalkedComponent::AddRecord(const QString &UIID, const QString &GridID, qint32 &RecordNr, bool &OK) {
    TransformerComponent::AddRecord(UIID, GridID, RecordNr, OK);
    inserted(UIID, addressOf(UIID, RecordNr), QStringLiteral("additions"), OK);
}

void WalkedComponent::InsertRecord(const QString &UIID, qint32 RecordNr, const QString &GridID, bool &OK) {
    TransformerComponent::InsertRecord(UIID, RecordNr, GridID, OK);
    inserted(UIID, addressOf(UIID, RecordNr), QStringLiteral("insertions"), OK);
}

void WalkedComponent::RepeatRecord(const QString &UIID, qint32 RecordNr, const QString &GridID, bool &OK) {
    TransformerComponent::RepeatRecord(UIID, RecordNr, GridID, OK);
    const RecordAddress source = addressOf(UIID, RecordNr);
    inserted(UIID, {source.parent, source.number + 1}, QStringLiteral("repeats"), OK);
}

void WalkedComponent::DeleteRecord(const QString &UIID, qint32 RecordNr, bool &OK) {
    const RecordAddress record = addressOf(UIID, RecordNr);
    TransformerComponent::DeleteRecord(UIID, RecordNr, OK);
    count(QStringLiteral("deletions"), OK);
    if (OK)
        mModel.erase(state().findStructure(UIID)->index, record);
}

bool WalkedComponent::ImportRecordByPaste(const QString &GridID, const QString &UIIDList, QWidget *MainWindow,
                                          const QString &Reserved, const QString &SelectedRecordsList) {
    const bool pasted =
        TransformerComponent::ImportRecordByPaste(GridID, UIIDList, MainWindow, Reserved, SelectedRecordsList);
    count(QStringLiteral("pastes"), pasted);
    mModel.look();
    return pasted;
}

void WalkedComponent::SortColumn(const QString &UIID, bool Ascending) {
    TransformerComponent::SortColumn(UIID, Ascending);
    mTally.add(QStringLiteral("sorts"));
    mModel.look();
}

bool WalkedComponent::SetAccessLevel(qint32 Level) {
    mTally.add(QStringLiteral("access levels"));
    return TransformerComponent::SetAccessLevel(Level);
}

void WalkedComponent::ChangeTier(const QString &TierKey) {
    mTally.add(QStringLiteral("tiers"));
    TransformerComponent::ChangeTier(TierKey);
}

void WalkedComponent::SaveForm(const QString &TierKey) {
    mTally.add(QStringLiteral("accepted forms"));
    mModel.commit();
    TransformerComponent::SaveForm(TierKey);
}

void WalkedComponent::RevertFormData(const QString &TierKey) {
    mTally.add(QStringLiteral("reverts"));
    mModel.revert(dictionary().tierByKey(TierKey).value_or(state().tier()));
    TransformerComponent::RevertFormData(TierKey);
}

void WalkedComponent::startOver() {
    mModel.look();
    mModel.commit();
}

void WalkedComponent::SaveFile(const QString &FileName, const QString &FileComment, qint32 Version, bool &Result) {
    TransformerComponent::SaveFile(FileName, FileComment, Version, Result);
    count(QStringLiteral("saves"), Result);
    if (Result && !FileName.endsWith(QStringLiteral(".sqt")))
        startOver();
}

void WalkedComponent::ReadFile(const QString &FileName, qint32 FileFormat, qint32 FileVersion, bool ReadOnly) {
    mTally.add(QStringLiteral("files"));
    TransformerComponent::ReadFile(FileName, FileFormat, FileVersion, ReadOnly);
}

qint32 WalkedComponent::ResetDatabase() {
    const qint32 result = TransformerComponent::ResetDatabase();
    startOver();
    return result;
}

void WalkedComponent::ReloadDefaults(const QString &TierKey) {
    TransformerComponent::ReloadDefaults(TierKey);
    startOver();
}

void WalkedComponent::TransformerEvents_MsgBox(const QString & /*Prompt*/, qint32 /*Buttons*/,
                                               const QString & /*Title*/, qint32 & /*Answer*/,
                                               const QString & /*strParameters*/) {
    mTally.add(QStringLiteral("messages"));
}

void WalkedComponent::TransformerEvents_UpdateUIFieldByUIID(const QString &UIID, qint32 RecordNr,
                                                            const QVariant &Value) {
    noteSettings();
    const FieldDefinition *field = dictionary().find(UIID);
    if (field != nullptr && field->isStored())
        mModel.note(*field, state().address(field->structure, RecordNr), ValueText::of(Value));
}
