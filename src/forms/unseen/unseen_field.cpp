#include "unseen_field.h"

#include "value_text.h"

UnseenField::UnseenField(const ControlDefinition &definition, HostControl *container, qint32 tabIndex)
    : UnseenControl(definition, container, tabIndex), mUIID(property("ID").toString()),
      mName(property("Caption").toString()), mRecordNr(property("RecordNr").toInt()),
      mStream(property("NavigatorStream").toInt()) {}

QVariant UnseenField::Ifield_SetName(const QString &Name) {
    mName = Name;
    return Name;
}

bool UnseenField::Ifield_SetValue(const QVariant &Value, bool /*blnValidate*/) {
    mValue = ValueText::isUndefined(Value) ? QVariant(QString()) : Value;
    return true;
}

void UnseenField::Ifield_SetEnabled() {
    mEnabled = true;
    mShown = true;
}

void UnseenField::Ifield_SetDisabled() {
    mEnabled = false;
    mShown = true;
}

void UnseenField::Ifield_SetInvisible() {
    mEnabled = false;
    mShown = false;
}

void UnseenField::Ifield_UIIDNotFound() {
    mEnabled = false;
    mNotFound = true;
}
