#pragma once

#include "fake_control.h"
#include "ifield.h"

// A field without a widget: host control and field in one. Text, checkbox, option button and frame need no more.
// SetName, SetValue, SetEnabled and so on go to the log as "name.SetValue(abc, false)"; reads do not.
class FakeField : public FakeControl, public Ifield {
  public:
    // The uiid is the name without its first three letters: "txtPower" has "Power".
    FakeField(CallLog &log, const QString &name, const QString &typeName);

    QString uiid;
    qint32 recordNr = 0;
    QVariant value = QString();
    QString caption; // the design's at first
    qint32 stream = 0;
    qint32 helpId = 0;
    bool fieldEnabled = true;
    bool fieldVisible = true;
    bool notFound = false;

    [[nodiscard]] Ifield *object() const override;

    void Ifield_Delete() override {}
    void Ifield_SelectAll() override {}
    void Ifield_Copy() override {}
    void Ifield_Paste() override {}
    void Ifield_Cut() override {}
    qint32 Ifield_GetEditOperations() override { return 0; }
    bool Ifield_GetVisible() const override { return fieldVisible; }
    qint32 Ifield_GetHelpID() const override { return helpId; }
    void Ifield_GetUIIDNotFound(bool NewUIIDNotFound) override { notFound = NewUIIDNotFound; }
    bool Ifield_GetUIIDNotFound() const override { return notFound; }
    QVariant Ifield_GetValue() override { return value; }
    void Ifield_SetHelpID(qint32 HelpID) override;
    void Ifield_SetWhatsThisHelpID(qint32 HelpID) override;
    void Ifield_SetUIWidth(qint32 Width) override;
    QVariant Ifield_SetName(const QString &Name) override;
    QString Ifield_GetName() const override { return caption; }
    bool Ifield_SetValue(const QVariant &Value, bool blnValidate) override;
    void Ifield_SetRecordNumber(qint32 lngNewRecordNumber) override;
    QString Ifield_GetUIID() const override { return uiid; }
    void Ifield_SetUIID(const QString &UIID) override { uiid = UIID; }
    void Ifield_SetEnabled() override;
    void Ifield_SetDisabled() override;
    void Ifield_SetInvisible() override;
    bool Ifield_GetEnabled() const override { return fieldEnabled; }
    void Ifield_UIIDNotFound() override;
    qint32 Ifield_GetRecordNr() const override { return recordNr; }
    QString Ifield_GetTypeName() const override { return TypeName(); }
    void Ifield_SetFocus() override { SetFocus(); }
    qint32 Ifield_GetNavigatorStream() const override { return stream; }
    void Ifield_Terminate() override { mWrapper.reset(); }
    std::shared_ptr<clsControlItem> Ifield_WrapperCtrlItem() const override { return mWrapper; }
    void Ifield_WrapperCtrlItem(const std::shared_ptr<clsControlItem> &objCtrlItem) override { mWrapper = objCtrlItem; }

  private:
    std::shared_ptr<clsControlItem> mWrapper;
};
