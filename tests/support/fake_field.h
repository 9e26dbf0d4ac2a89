#pragma once

#include "fake_control.h"
#include "ifield.h"
#include "value_text.h"

// A field without a widget: host control and field in one. Text, checkbox, option button and frame need no more.
// SetName, SetValue, SetEnabled and so on go to the log as "name.SetValue(abc, false)"; reads do not.
class FakeField : public FakeControl, public Ifield {
  public:
    // The uiid is the name without its first three letters: "txtPower" has "Power".
    FakeField(CallLog &log, const QString &name, const QString &typeName)
        : FakeControl(log, name, typeName), uiid(name.mid(3)), caption(QStringLiteral("design of ") + name) {}

    QString uiid;
    qint32 recordNr = 0;
    QVariant value = QString();
    QString caption; // the design's at first
    qint32 stream = 0;
    qint32 helpId = 0;
    bool fieldEnabled = true;
    bool fieldVisible = true;
    bool notFound = false;

    [[nodiscard]] Ifield *object() const override {
        failIfUnreadable();
        return const_cast<FakeField *>(this); // the contract's read of a control's object is const
    }

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
    void Ifield_SetHelpID(qint32 HelpID) override {
        helpId = HelpID;
        log("SetHelpID", {HelpID});
    }
    void Ifield_SetWhatsThisHelpID(qint32 HelpID) override { log("SetWhatsThisHelpID", {HelpID}); }
    void Ifield_SetUIWidth(qint32 Width) override { log("SetUIWidth", {Width}); }
    QVariant Ifield_SetName(const QString &Name) override {
        caption = Name;
        log("SetName", {Name});
        return Name;
    }
    QString Ifield_GetName() const override { return caption; }
    bool Ifield_SetValue(const QVariant &Value, bool blnValidate) override {
        value = ValueText::isUndefined(Value) ? QVariant(QString()) : Value;
        log("SetValue", {Value, blnValidate});
        bool cancel = false;
        if (blnValidate)
            raise(FieldEvent(QStringLiteral("ManualValidate"), out(cancel)));
        return !cancel;
    }
    void Ifield_SetRecordNumber(qint32 lngNewRecordNumber) override {
        recordNr = lngNewRecordNumber;
        log("SetRecordNumber", {lngNewRecordNumber});
    }
    QString Ifield_GetUIID() const override { return uiid; }
    void Ifield_SetUIID(const QString &UIID) override { uiid = UIID; }
    void Ifield_SetEnabled() override {
        fieldEnabled = true;
        fieldVisible = true;
        notFound = false;
        log("SetEnabled");
    }
    void Ifield_SetDisabled() override {
        fieldEnabled = false;
        fieldVisible = true;
        log("SetDisabled");
    }
    void Ifield_SetInvisible() override {
        fieldEnabled = false;
        fieldVisible = false;
        log("SetInvisible");
    }
    bool Ifield_GetEnabled() const override { return fieldEnabled; }
    void Ifield_UIIDNotFound() override {
        value = QString();
        fieldEnabled = false;
        notFound = true;
        log("UIIDNotFound");
    }
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
