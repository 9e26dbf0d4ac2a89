#include "fake_navigator.h"

#include <algorithm>

FakeNavigator::FakeNavigator(CallLog &log, const QString &name)
    : FakeField(log, name, QStringLiteral("fldPageNavigator")) {}

void FakeNavigator::Inavigator_NumberRecords(qint32 NewNumber) {
    log("NumberRecords", {NewNumber});
    numberRecords = NewNumber;
    position = std::min(position, NewNumber);
    mConfirmed = -1;
}

void FakeNavigator::Inavigator_Position(qint32 NewPosition) {
    if (mMoving)
        return;
    log("Position", {NewPosition});
    mMoving = true;
    position = NewPosition;
    change();
    mMoving = false;
}

void FakeNavigator::Inavigator_ForcePositionChange(qint32 lngPosition) {
    log("ForcePositionChange", {lngPosition});
    position = lngPosition;
    mConfirmed = -1;
    change();
}

void FakeNavigator::change() {
    if (storageUIID.isEmpty() || position == mConfirmed)
        return;
    bool accepted = false;
    raise(FieldEvent(QStringLiteral("ChangePositionStorage"), in(storageUIID), out(position), out(accepted)));
    if (!accepted) {
        position = mConfirmed == -1 ? position : mConfirmed;
        return;
    }
    mConfirmed = position;
    raise(FieldEvent(QStringLiteral("ChangedPosition"), in(storageUIID), out(stream), out(position)));
}
