#pragma once

#include "labelled_field.h"
#include "slider_steps.h"

struct FieldProperties;
class QInputEvent;
class QLineEdit;
class QSlider;
class QToolButton;

// A number as a caption, a slider between two buttons, and a read-out. The slider walks in steps: value = position
// times step. What lies above the share SafetyMargin of the maximum is reached with Shift only, and reads out on red;
// from there every move down stands.
//
// Properties: NavigatorStream (0), Value (0), Visible (true), RecordNumber (of the load), LabelWidthFactor (0.2), ID
// ("Undefined"), Caption ("Field"), Enabled (false), SafetyMargin (1). The value is the number of the read-out, which
// need not be a multiple of the step until the user moves it.
// Events: "Change" for the user's moves only, "EnterFocus", "ExitFocus", "ManualValidate".
class fldSliderField final : public LabelledField, public SliderRange {
    Q_OBJECT
  public:
    // Asks the component for the number of records unless RecordNumber is stored.
    fldSliderField(const FieldServices &services, const FieldProperties &properties, QWidget *parent);

    void SetMin(qint32 Min) override { mSteps.setMin(Min); }
    void SetMax(qint32 Max) override { mSteps.setMax(Max); }
    // After the limits: gives the slider its range. With both limits 0 the range stays, with equal limits the slider
    // cannot be moved.
    void SetStep(qint32 Step) override;

    // The number; cutting leaves it.
    void Ifield_Copy() override;
    void Ifield_Cut() override { Ifield_Copy(); }
    // Nothing unless the clipboard holds a number that is not beyond the safety margin; a change is reported.
    void Ifield_Paste() override;
    // 6 when such a number is on the clipboard, else 2.
    qint32 Ifield_GetEditOperations() override;
    QVariant Ifield_GetValue() override { return mValue; }
    // What is no number changes nothing.
    bool Ifield_SetValue(const QVariant &Value, bool blnValidate) override;
    void Ifield_SetEnabled() override;
    void Ifield_SetDisabled() override;
    void Ifield_SetInvisible() override;
    bool Ifield_GetEnabled() const override { return ControlEnabled(); }
    QString Ifield_GetTypeName() const override { return QStringLiteral("fldSliderField"); }
    QVariant Ifield_SetName(const QString &Name) override;

    void FocusHasLeft() override;
    void FocusHasCome() override;

  protected:
    [[nodiscard]] QWidget *editingPart() const override;
    void showNothing() override;
    Twips placeEditors(const LabelLayout::Parts &parts, Twips givenHeight) override;
    void applyColours() override { showFace(); }
    bool eventFilter(QObject *watched, QEvent *event) override;

    [[nodiscard]] QString DragText() override;
    [[nodiscard]] bool AcceptsDrag(const QString &text) const override;
    void TakeDrop(const QString &text) override;

  private:
    void readProperties(const FieldProperties &properties);
    void setUpParts();
    void cmdUp_Click();
    void cmdDown_Click();
    void Slider1_Scroll();
    void Slider1_Change();
    void noteShift(const QInputEvent &event);
    [[nodiscard]] double number() const;
    // Whether the user may put that number there without moving the slider.
    [[nodiscard]] bool mayBePut(const QVariant &value) const;
    void put(const QVariant &value);
    void showNumber(const QVariant &value);
    void moveTo(int position);
    void enableParts(bool enabled);
    void showParts(bool shown);
    void nameParts();
    void showFace();

    QLineEdit *mText1; // this and the following are owned by this widget
    QSlider *mSlider1;
    QToolButton *mcmdUp;
    QToolButton *mcmdDown;
    SliderSteps mSteps;
    QVariant mValue = 0;
    double mSafetyMargin = 1.0;
    int mScrolls = 0;
    bool mShiftHeld = false;
};
