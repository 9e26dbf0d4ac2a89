#include "recording_host.h"

void RecordingHost::frmField_Validate(bool &Cancel) {
    hear(QStringLiteral("Validate"));
    Cancel = refuseValidate;
}

void RecordingHost::frmField_ObjectEvent(const FieldEvent &Event) {
    hear(Event.name());
    if (Event.name() == QStringLiteral("ManualValidate"))
        Event.parameter<bool &>(0) = refuseManualValidate;
    if (Event.name() == QStringLiteral("GetFieldsInFrame"))
        Event.parameter<QStringList &>(1) = fieldsInFrame;
}

void RecordingHost::hear(const QString &event) {
    mHeard << mName + u'.' + event;
    if (on)
        on(event);
}
