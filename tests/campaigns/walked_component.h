#pragma once

#include "campaign.h"
#include "component_listener.h"
#include "plain_model.h"
#include "transformer_component.h"

// The component of a walk through the program: the real one, with a plain model kept beside it by what the window asks
// of it and what it answers and tells. Counts what took effect.
class WalkedComponent final : public TransformerComponent, private ComponentListener {
  public:
    WalkedComponent(const ComponentPlaces &places, std::function<QString()> clipboard, Campaign::Tally &tally);

    // Where its data, and what GetValue answers for the records in scope, differ from the model; at most a few.
    [[nodiscard]] QStringList differences();
    // Values that were set again, the same, from inside their own setting.
    [[nodiscard]] const QStringList &echoes() const { return mEchoes; }

    void SetValue(const QString &UIID, const QVariant &Value, qint32 RecordNr, bool Validate, bool &OK) override;
    void AddRecord(const QString &UIID, const QString &GridID, qint32 &RecordNr, bool &OK) override;
    void InsertRecord(const QString &UIID, qint32 RecordNr, const QString &GridID, bool &OK) override;
    void RepeatRecord(const QString &UIID, qint32 RecordNr, const QString &GridID, bool &OK) override;
    void DeleteRecord(const QString &UIID, qint32 RecordNr, bool &OK) override;
    bool ImportRecordByPaste(const QString &GridID, const QString &UIIDList, QWidget *MainWindow,
                             const QString &Reserved, const QString &SelectedRecordsList) override;
    void SortColumn(const QString &UIID, bool Ascending) override;
    bool SetAccessLevel(qint32 Level) override;
    void ChangeTier(const QString &TierKey) override;
    void SaveForm(const QString &TierKey) override;
    void RevertFormData(const QString &TierKey) override;
    void SaveFile(const QString &FileName, const QString &FileComment, qint32 Version, bool &Result) override;
    void ReadFile(const QString &FileName, qint32 FileFormat, qint32 FileVersion, bool ReadOnly) override;
    qint32 ResetDatabase() override;
    void ReloadDefaults(const QString &TierKey) override;

  private:
    // A value that is being set and not yet in the model; the first word of its acceptance puts it there.
    struct Setting {
        const FieldDefinition *field = nullptr;
        RecordAddress record;
        QString value;
        bool noted = false;
    };
    void noteSettings();
    void startOver();
    void count(const QString &kind, bool accepted);
    void inserted(const QString &uiid, RecordAddress record, const QString &kind, bool accepted);
    [[nodiscard]] RecordAddress addressOf(const QString &uiid, qint32 recordNr);

    void TransformerEvents_MsgBox(const QString &Prompt, qint32 Buttons, const QString &Title, qint32 &Answer,
                                  const QString &strParameters) override;
    void TransformerEvents_UpdateUIFieldByUIID(const QString &UIID, qint32 RecordNr, const QVariant &Value) override;
    void TransformerEvents_FieldHasChanged() override { noteSettings(); }
    void TransformerEvents_SetEnableDisableByUIID(const QString & /*UIID*/, bool /*Enable*/) override {
        noteSettings();
    }
    void TransformerEvents_ChangeToTier(const QString & /*TierKey*/, const QStringList & /*FormList*/,
                                        const QStringList & /*FormDescList*/,
                                        const QHash<QString, QVariant> & /*FormAccessLevels*/,
                                        const QHash<QString, QVariant> & /*FormNetworks*/,
                                        const QStringList & /*FormTypeList*/, bool & /*Result*/) override {
        startOver();
    }

    Campaign::Tally &mTally;
    PlainModel mModel;
    std::vector<Setting> mSettings;
    QStringList mEchoes;
};
