#pragma once

#include "cls_format_edit.h"
#include "labelled_field.h"
#include "text_box.h"
#include "width_limit.h"

struct FieldProperties;
class QLineEdit;
class QPlainTextEdit;

// A caption and a text. With DynamicHeight the text is a display of several lines, as high as the control.
//
// Properties: Caption ("TextField"), Text ("Text1", not shown), Text2 ("Text2"), ID ("Undefined"), NavigatorStream (0),
// LabelWidthFactor (0.6), DynamicHeight (false), ReadOnly (false), Enabled (true). A box starts enabled exactly when it
// is not read-only; Enabled is the logical state alone.
// Events: "Change" on every change of the text, "ManualValidate", "Escape".
class fldTextField final : public LabelledField {
    Q_OBJECT
  public:
    // Asks the component for the number of records and the mask. Raises error 5 or 13 for a property that does not fit.
    fldTextField(const FieldServices &services, const FieldProperties &properties, QWidget *parent);

    [[nodiscard]] QString Text() const { return mActive->text(); }
    [[nodiscard]] bool ReadOnly() const { return mReadOnly; }
    [[nodiscard]] bool DynamicHeight() const { return mDynamicHeight; }

    void Ifield_Delete() override;
    void Ifield_SelectAll() override;
    // Always of the single line, even where that is hidden.
    void Ifield_Copy() override;
    void Ifield_Paste() override;
    void Ifield_Cut() override;
    qint32 Ifield_GetEditOperations() override;
    QVariant Ifield_GetValue() override { return Text(); }
    bool Ifield_SetValue(const QVariant &Value, bool blnValidate) override;
    void Ifield_SetUIWidth(qint32 Width) override { mWidthLimit.setLimit(Width); }
    void Ifield_SetEnabled() override;
    void Ifield_SetDisabled() override;
    void Ifield_SetInvisible() override;
    // Of the active box, which is not always the logical state.
    bool Ifield_GetEnabled() const override { return mActive->widget().isEnabledTo(this); }
    QString Ifield_GetTypeName() const override { return QStringLiteral("fldTextField"); }

  protected:
    [[nodiscard]] QWidget *editingPart() const override { return &mActive->widget(); }
    [[nodiscard]] bool lastCheckBeforeLeave() override;
    void showNothing() override { Ifield_SetValue(QString(), false); }
    Twips placeEditors(const LabelLayout::Parts &parts, Twips givenHeight) override;
    void applyColours() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

    [[nodiscard]] QString DragText() override;
    [[nodiscard]] bool AcceptsDrag(const QString &text) const override;
    void TakeDrop(const QString &text) override;

  private:
    void setUpBoxes();
    void readProperties(const FieldProperties &properties);
    void askComponent();
    void Text_Change();
    bool Text_KeyPress(QEvent &event);
    void showComponentValue();
    void showActiveBox();
    void setFace(BoxFace face);

    QLineEdit *mText1;      // owned by this widget
    QPlainTextEdit *mText2; // owned by this widget
    LineTextBox mLine;
    MultiLineTextBox mLines;
    TextBox *mActive;
    clsFormatEdit mFormatEdit;
    WidthLimit mWidthLimit;
    BoxFace mFace = BoxFace::kWindow;
    bool mReadOnly = false;
    bool mDynamicHeight = false;
};
