#pragma once

#include "editable_field.h"
#include "field_drag.h"

class CaptionCheckBox;
struct FieldProperties;

// A check box that carries its own caption; the value is 0 or 1. Only the right button drags it.
//
// Properties: Value (0), Caption ("Field"), ID ("Undefined"), LabelWidthFactor (0.6), Enabled (true), NavigatorStream
// (0). With a factor of 0 the box stands alone. Events: "Click", "Escape", "ManualValidate".
class fldCheckboxField final : public EditableField, private DragParty {
    Q_OBJECT
  public:
    fldCheckboxField(const FieldServices &services, const FieldProperties &properties, QWidget *parent);

    // The value as "0" or "1"; cutting leaves it.
    void Ifield_Copy() override;
    void Ifield_Cut() override { Ifield_Copy(); }
    // Nothing unless the clipboard holds exactly "0" or "1"; a change is reported.
    void Ifield_Paste() override;
    // 6 when such a text is on the clipboard, else 2.
    qint32 Ifield_GetEditOperations() override;
    QVariant Ifield_GetValue() override;
    QVariant Ifield_SetName(const QString &Name) override;
    QString Ifield_GetName() const override;
    // A value that is no number fails into the common report.
    bool Ifield_SetValue(const QVariant &Value, bool blnValidate) override;
    void Ifield_SetEnabled() override;
    void Ifield_SetDisabled() override;
    void Ifield_SetInvisible() override;
    bool Ifield_GetEnabled() const override;
    void Ifield_UIIDNotFound() override;
    QString Ifield_GetTypeName() const override { return QStringLiteral("fldCheckboxField"); }
    TwipSize SetControlSize(const TwipSize &size) override;

  protected:
    [[nodiscard]] QWidget *editingPart() const override;
    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    void readProperties(const FieldProperties &properties);
    void showCaption(const QString &caption);
    void layOut();
    void Check1_Click();
    void setByUser(const QString &value);

    [[nodiscard]] bool MayDrag() const override { return ControlEnabled(); }
    [[nodiscard]] QString DragId() const override { return Ifield_GetUIID(); }
    [[nodiscard]] QString DragTypeName() const override { return Ifield_GetTypeName(); }
    [[nodiscard]] QString DragText() override;
    [[nodiscard]] bool AcceptsDrag(const QString &text) const override;
    void TakeDrop(const QString &text) override;
    void DragFinished() override { mDragging = false; }

    CaptionCheckBox *mCheck; // owned by this widget
    FieldDrag mDrag;
    double mLabelWidthFactor = 0.6;
    TwipSize mSize;
    bool mDragging = false;
};
