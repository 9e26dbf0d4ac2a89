#pragma once

#include "call_log.h"
#include "host_control.h"
#include "run_time_error.h"

#include <utility>

// A control of a form without a widget: what it reports are its members. Its calls go to the log under its name.
class FakeControl : public HostControl {
  public:
    FakeControl(CallLog &log, QString name, QString typeName)
        : mLog(log), mName(std::move(name)), mTypeName(std::move(typeName)) {}
    ~FakeControl() override = default;
    FakeControl(const FakeControl &) = delete;
    FakeControl &operator=(const FakeControl &) = delete;

    HostControl *container = nullptr;
    qint32 tabIndex = 0;
    qint32 left = 0;
    bool hostEnabled = true;
    bool hostVisible = true;
    bool tabStop = true;
    bool failsToRead = false; // object, TabIndex, Enabled and SetTabStop raise error 438

    [[nodiscard]] bool hasListener() const { return mListener != nullptr; }
    // Raises a generic event of the field; lost without a listener.
    void raise(const FieldEvent &event) {
        if (mListener != nullptr)
            mListener->frmField_ObjectEvent(event);
    }
    // Raise the host's own events.
    void gotFocus() {
        if (mListener != nullptr)
            mListener->frmField_GotFocus();
    }
    void lostFocus() {
        if (mListener != nullptr)
            mListener->frmField_LostFocus();
    }
    // The Cancel that comes back.
    bool validate(bool cancel = false) {
        if (mListener != nullptr)
            mListener->frmField_Validate(cancel);
        return cancel;
    }

    [[nodiscard]] QString Name() const override { return mName; }
    [[nodiscard]] QString TypeName() const override { return mTypeName; }
    [[nodiscard]] Ifield *object() const override {
        failIfUnreadable();
        return nullptr;
    }
    [[nodiscard]] HostControl *Container() const override { return container; }
    [[nodiscard]] qint32 TabIndex() const override {
        failIfUnreadable();
        return tabIndex;
    }
    [[nodiscard]] qint32 Left() const override { return left; }
    [[nodiscard]] bool Enabled() const override {
        failIfUnreadable();
        return hostEnabled;
    }
    [[nodiscard]] bool Visible() const override { return hostVisible; }
    void SetVisible(bool visible) override {
        hostVisible = visible;
        log("SetVisible", {visible});
    }
    [[nodiscard]] bool TabStop() const override { return tabStop; }
    void SetTabStop(bool newTabStop) override {
        failIfUnreadable();
        tabStop = newTabStop;
    }
    void SetFocus() override { log("SetFocus"); }
    void SetListener(HostEvents *listener) override { mListener = listener; }

  protected:
    void log(const char *operation, const QVariantList &arguments = {}) const {
        mLog.add(mName + u'.' + QString::fromLatin1(operation), arguments);
    }
    void failIfUnreadable() const {
        if (failsToRead)
            throw RunTimeError(438, mName, QStringLiteral("no such property"));
    }

  private:
    CallLog &mLog;
    QString mName;
    QString mTypeName;
    HostEvents *mListener = nullptr;
};
