#pragma once

#include "host_control.h"

#include <QStringList>

#include <functional>

// Hears the events of a field in the enabler's place: writes them to a shared list as "<name>.<event>" and answers by
// script.
class RecordingHost final : public HostEvents {
  public:
    RecordingHost(QString name, QStringList &heard) : mName(std::move(name)), mHeard(heard) {}

    bool refuseValidate = false;
    bool refuseManualValidate = false;
    QStringList fieldsInFrame;               // the answer to "GetFieldsInFrame"
    std::function<void(const QString &)> on; // runs inside each event, with its name

    void frmField_GotFocus() override { hear(QStringLiteral("GotFocus")); }
    void frmField_LostFocus() override { hear(QStringLiteral("LostFocus")); }
    void frmField_Validate(bool &Cancel) override {
        hear(QStringLiteral("Validate"));
        Cancel = refuseValidate;
    }
    void frmField_ObjectEvent(const FieldEvent &Event) override {
        hear(Event.name());
        if (Event.name() == QStringLiteral("ManualValidate"))
            Event.parameter<bool &>(0) = refuseManualValidate;
        if (Event.name() == QStringLiteral("GetFieldsInFrame"))
            Event.parameter<QStringList &>(1) = fieldsInFrame;
    }

  private:
    void hear(const QString &event) {
        mHeard << mName + u'.' + event;
        if (on)
            on(event);
    }

    QString mName;
    QStringList &mHeard;
};
