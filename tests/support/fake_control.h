#pragma once

#include "call_log.h"
#include "host_control.h"

// A control of a form without a widget: what it reports are its members. Its calls go to the log under its name.
class FakeControl : public HostControl {
  public:
    FakeControl(CallLog &log, QString name, QString typeName);
    ~FakeControl() override;
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
    void raise(const FieldEvent &event);
    // Raise the host's own events.
    void gotFocus();
    void lostFocus();
    // The Cancel that comes back.
    bool validate(bool cancel = false);

    [[nodiscard]] QString Name() const override { return mName; }
    [[nodiscard]] QString TypeName() const override { return mTypeName; }
    [[nodiscard]] Ifield *object() const override;
    [[nodiscard]] HostControl *Container() const override { return container; }
    [[nodiscard]] qint32 TabIndex() const override;
    [[nodiscard]] qint32 Left() const override { return left; }
    [[nodiscard]] bool Enabled() const override;
    [[nodiscard]] bool Visible() const override { return hostVisible; }
    void SetVisible(bool visible) override;
    [[nodiscard]] bool TabStop() const override { return tabStop; }
    void SetTabStop(bool newTabStop) override;
    void SetFocus() override;
    void SetListener(HostEvents *listener) override { mListener = listener; }

  protected:
    void log(const char *operation, const QVariantList &arguments = {}) const;
    void failIfUnreadable() const;

  private:
    CallLog &mLog;
    QString mName;
    QString mTypeName;
    HostEvents *mListener = nullptr;
};
