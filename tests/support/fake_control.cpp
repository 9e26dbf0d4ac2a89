#include "fake_control.h"

#include "run_time_error.h"

#include <utility>

namespace {
constexpr qint32 kNoSuchProperty = 438;
}

FakeControl::FakeControl(CallLog &log, QString name, QString typeName)
    : mLog(log), mName(std::move(name)), mTypeName(std::move(typeName)) {}

FakeControl::~FakeControl() = default;

void FakeControl::raise(const FieldEvent &event) {
    if (mListener != nullptr)
        mListener->frmField_ObjectEvent(event);
}

void FakeControl::gotFocus() {
    if (mListener != nullptr)
        mListener->frmField_GotFocus();
}

void FakeControl::lostFocus() {
    if (mListener != nullptr)
        mListener->frmField_LostFocus();
}

bool FakeControl::validate(bool cancel) {
    if (mListener != nullptr)
        mListener->frmField_Validate(cancel);
    return cancel;
}

void FakeControl::failIfUnreadable() const {
    if (failsToRead)
        throw RunTimeError(kNoSuchProperty, mName, QStringLiteral("no such property"));
}

Ifield *FakeControl::object() const {
    failIfUnreadable();
    return nullptr;
}

qint32 FakeControl::TabIndex() const {
    failIfUnreadable();
    return tabIndex;
}

bool FakeControl::Enabled() const {
    failIfUnreadable();
    return hostEnabled;
}

void FakeControl::SetVisible(bool visible) {
    hostVisible = visible;
    log("SetVisible", {visible});
}

void FakeControl::SetTabStop(bool newTabStop) {
    failIfUnreadable();
    tabStop = newTabStop;
}

void FakeControl::SetFocus() { log("SetFocus"); }

void FakeControl::log(const char *operation, const QVariantList &arguments) const {
    mLog.add(mName + u'.' + QString::fromLatin1(operation), arguments);
}
