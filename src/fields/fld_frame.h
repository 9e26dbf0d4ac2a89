#pragma once

#include "field_control.h"
#include "field_drag.h"

class FieldLabel;
class FrameBorder;
struct FieldProperties;

// Groups fields under a caption: with a border, or, with HideThisFrame, as a heading alone. Its controls are its child
// widgets, placed relative to its upper left corner; the caption takes the uppermost 250 twips. Dragging it drags all
// its fields; it takes no drops. It is never bound to the component: UIID and value are "Undefined".
//
// Properties: Enabled (true), Font (""), Caption ("Field"), WhatsThisHelpID (0), ID ("Undefined"), HideThisFrame
// (false), LabelWidthFactor (0.6). Event: "GetFieldsInFrame".
class fldFrame final : public FieldControl, private DragParty {
    Q_OBJECT
  public:
    fldFrame(const FieldServices &services, const FieldProperties &properties, QWidget *parent);

    [[nodiscard]] bool HideThisFrame() const { return mHideThisFrame; }

    bool Ifield_GetVisible() const override;
    QString Ifield_GetUIID() const override { return undefined(); }
    QVariant Ifield_GetValue() override { return undefined(); }
    bool Ifield_SetValue(const QVariant & /*Value*/, bool /*blnValidate*/) override { return true; }
    qint32 Ifield_GetNavigatorStream() const override { return 0; }
    QVariant Ifield_SetName(const QString &Name) override;
    QString Ifield_GetName() const override;
    void Ifield_SetEnabled() override;
    void Ifield_SetDisabled() override {}
    void Ifield_SetInvisible() override {}
    bool Ifield_GetEnabled() const override;
    void Ifield_UIIDNotFound() override;
    QString Ifield_GetTypeName() const override { return QStringLiteral("fldFrame"); }
    void Ifield_SetFocus() override {}

    TwipSize SetControlSize(const TwipSize &size) override;
    [[nodiscard]] bool ControlEnabled() const override { return Ifield_GetEnabled(); }

  private:
    void readProperties(const FieldProperties &properties);
    void layOut();
    [[nodiscard]] static QString undefined();

    [[nodiscard]] bool MayDrag() const override { return ControlEnabled(); }
    [[nodiscard]] QString DragId() const override { return Ifield_GetName(); }
    [[nodiscard]] QString DragTypeName() const override { return Ifield_GetTypeName(); }
    [[nodiscard]] QString DragText() override;
    [[nodiscard]] bool AcceptsDrag(const QString & /*text*/) const override { return false; }
    void TakeDrop(const QString & /*text*/) override {}

    FrameBorder *mFrame1; // owned by this widget
    FieldLabel *mLabel1;  // owned by this widget
    FieldDrag mDrag;
    double mLabelWidthFactor = 0.6;
    TwipSize mSize;
    bool mHideThisFrame = false;
};
