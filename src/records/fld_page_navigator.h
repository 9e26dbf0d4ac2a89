#pragma once

#include "editable_field.h"
#include "inavigator.h"
#include "navigator_buttons.h"
#include "navigator_names.h"
#include "navigator_parts.h"
#include "navigator_position.h"

class NavigatorGrid;
struct FieldProperties;

// Chooses the record that a form shows: a slider, a list of record names, buttons. It changes no field: it raises
// events, and the enabler reads the fields of the same stream again.
//
// Properties, which cannot be changed while the form runs: NavigatorStream (0), GridID (""; empty: the record buttons
// do nothing), GuideUIID (""; its records are counted, its values are their names), PositionStorageUIID (""; without it
// a move of the slider changes nothing), GotoNumber (1), SliderStyle (0: step buttons; 1 and 2: list and record
// buttons), ButtonAdd, ButtonInsert, ButtonRepeat, ButtonDelete (true with style 2, else false), GridControl (""),
// SubNavigator (""), Enabled (true).
// Events: "ChangedPosition", "ChangePositionStorage", "AddRecordNavigator", "DeleteRecordNavigator",
// "InsertRecordNavigator", "RepeatRecordNavigator", "ValidateForm".
class fldPageNavigator final : public EditableField, public Inavigator, public NavigatorButtons, private PositionOwner {
    Q_OBJECT
  public:
    fldPageNavigator(const FieldServices &services, const FieldProperties &properties, QWidget *parent);

    // The position. Writing it by Ifield_SetRecordNumber is a move as that of the user.
    QVariant Ifield_GetValue() override { return mPosition.Position(); }
    qint32 Ifield_GetRecordNr() const override { return mPosition.Position(); }
    void Ifield_SetRecordNumber(qint32 lngNewRecordNumber) override;
    // Success, and nothing else.
    bool Ifield_SetValue(const QVariant & /*Value*/, bool /*blnValidate*/) override { return true; }
    QString Ifield_GetUIID() const override { return mGuideUIID; }
    void Ifield_SetUIID(const QString &UIID) override { mGuideUIID = UIID; }
    qint32 Ifield_GetNavigatorStream() const override { return mNavigatorStream; }
    QString Ifield_GetTypeName() const override { return QStringLiteral("fldPageNavigator"); }
    // "<prefix>|<description>": the prefix stands before each record name ("NULL": none does), the description before
    // the list. The name alone is the prefix.
    QVariant Ifield_SetName(const QString &Name) override;
    QString Ifield_GetName() const override { return mNamePrefix; }
    // With style 1 slider and record buttons are disabled by this, with any other style the step buttons.
    void Ifield_SetEnabled() override;
    void Ifield_SetDisabled() override;
    // Hides the slider and the step buttons.
    void Ifield_SetInvisible() override;
    bool Ifield_GetEnabled() const override { return ControlEnabled(); }
    void Ifield_UIIDNotFound() override;

    qint32 Inavigator_NumberRecords() const override { return mPosition.NumberRecords(); }
    QString Inavigator_GridID() const override { return mGridID; }
    QString Inavigator_GuideUIID() const override { return mGuideUIID; }
    QVariant Inavigator_GuideValue() const override { return {}; }
    void Inavigator_NumberRecords(qint32 NewNumber) override;
    qint32 Inavigator_NavigatorStream() const override { return mNavigatorStream; }
    qint32 Inavigator_Position() const override { return mPosition.Position(); }
    void Inavigator_Position(qint32 NewPosition) override;
    QString Inavigator_SubNavigator() const override { return mSubNavigator; }
    void Inavigator_ForcePositionChange(qint32 lngPosition) override;
    QString Inavigator_StoragePositionUIID() const override { return mPositionStorageUIID; }
    QString Inavigator_GridControl() const override { return mGridControl; }
    [[nodiscard]] bool ButtonAdd() const override { return mParts.shows(NavigatorButton::kAdd); }

    // Widened to 6000 twips if narrower; the height follows from the slider.
    TwipSize SetControlSize(const TwipSize &size) override;
    void SetTabStop(bool tabStop) override;
    [[nodiscard]] bool TakesFocus() const override;

  protected:
    [[nodiscard]] QWidget *editingPart() const override;
    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    fldPageNavigator(const FieldServices &services, PropertyReader reader, QWidget *parent);

    struct ButtonCommand;
    struct RecordCommand;
    static const ButtonCommand kButtonCommands[];
    static const RecordCommand kAdd;
    static const RecordCommand kInsert;
    static const RecordCommand kRepeat;

    void connectParts();
    void sldSelector_Change();
    void sldSelector_Scroll(int thumb);
    void cboSelector_Click(int index);
    void cmdFirst_Click();
    void cmdBack_Click();
    void cmdForward_Click();
    void cmdLast_Click();
    void cmdAdd_Click();
    void cmdInsert_Click();
    void cmdRepeat_Click();
    void cmdDelete_Click();
    void cmdRestart_Click();
    void cmdPreviousStep_Click();
    void cmdNextStep_Click();
    void cmdGotoStep_Click();

    void run(const RecordCommand &command);
    void deleteRecord();
    [[nodiscard]] bool formIsValid();
    // The grid that does the record commands, found among the form's controls; null without one.
    [[nodiscard]] NavigatorGrid *grid() const;
    void enableAs(bool slider, bool steps, bool records);

    [[nodiscard]] bool HasStorage() const override { return !mPositionStorageUIID.isEmpty(); }
    [[nodiscard]] bool AskPosition(qint32 position) override;
    void TellPosition(qint32 position) override;
    void StoreIfNone(qint32 position) override;
    void UpdateTheLocationTextbox(qint32 position) override;
    void EnableSteps(qint32 position) override;
    void SetActionkeysEnabledDisabled() override;
    [[nodiscard]] bool Gone() const override { return isTerminated(); }

    qint32 mNavigatorStream;
    QString mGridID;
    QString mGuideUIID;
    QString mPositionStorageUIID;
    qint32 mGotoNumber;
    qint32 mSliderStyle;
    NavigatorParts mParts;
    QString mGridControl;
    QString mSubNavigator;
    QString mNamePrefix;
    QString mDescription;
    TwipSize mSize = {NavigatorLayout::kLeastWidth, {}};
    NavigatorPosition mPosition;
    NavigatorNames mNames;
};
