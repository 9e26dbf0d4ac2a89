#include "fake_field.h"

#include "value_text.h"

namespace {
constexpr qsizetype kPrefixLength = 3;
}

FakeField::FakeField(CallLog &log, const QString &name, const QString &typeName)
    : FakeControl(log, name, typeName), uiid(name.mid(kPrefixLength)), caption(QStringLiteral("design of ") + name) {}

Ifield *FakeField::object() const {
    failIfUnreadable();
    return const_cast<FakeField *>(this); // the contract's read of a control's object is const
}

void FakeField::Ifield_SetHelpID(qint32 HelpID) {
    helpId = HelpID;
    log("SetHelpID", {HelpID});
}

void FakeField::Ifield_SetWhatsThisHelpID(qint32 HelpID) { log("SetWhatsThisHelpID", {HelpID}); }

void FakeField::Ifield_SetUIWidth(qint32 Width) { log("SetUIWidth", {Width}); }

QVariant FakeField::Ifield_SetName(const QString &Name) {
    caption = Name;
    log("SetName", {Name});
    return Name;
}

bool FakeField::Ifield_SetValue(const QVariant &Value, bool blnValidate) {
    value = ValueText::isUndefined(Value) ? QVariant(QString()) : Value;
    log("SetValue", {Value, blnValidate});
    bool cancel = false;
    if (blnValidate)
        raise(FieldEvent(QStringLiteral("ManualValidate"), out(cancel)));
    return !cancel;
}

void FakeField::Ifield_SetRecordNumber(qint32 lngNewRecordNumber) {
    recordNr = lngNewRecordNumber;
    log("SetRecordNumber", {lngNewRecordNumber});
}

void FakeField::Ifield_SetEnabled() {
    fieldEnabled = true;
    fieldVisible = true;
    notFound = false;
    log("SetEnabled");
}

void FakeField::Ifield_SetDisabled() {
    fieldEnabled = false;
    fieldVisible = true;
    log("SetDisabled");
}

void FakeField::Ifield_SetInvisible() {
    fieldEnabled = false;
    fieldVisible = false;
    log("SetInvisible");
}

void FakeField::Ifield_UIIDNotFound() {
    value = QString();
    fieldEnabled = false;
    notFound = true;
    log("UIIDNotFound");
}
