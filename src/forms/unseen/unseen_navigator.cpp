#include "unseen_navigator.h"

#include <algorithm>

UnseenNavigator::UnseenNavigator(const ControlDefinition &definition, HostControl *container, qint32 tabIndex)
    : UnseenField(definition, container, tabIndex) {}

void UnseenNavigator::Inavigator_NumberRecords(qint32 NewNumber) {
    mRecords = std::max(NewNumber, 0);
    mPosition = std::min(mPosition, mRecords);
    mConfirmed = -1;
}

// A move from inside a move is ignored.
void UnseenNavigator::Inavigator_Position(qint32 NewPosition) {
    if (mMoving)
        return;
    mMoving = true;
    mPosition = std::clamp(NewPosition, std::min(1, mRecords), mRecords);
    if (mPosition != mConfirmed && mRecords > 0)
        change();
    mMoving = false;
}

void UnseenNavigator::Inavigator_ForcePositionChange(qint32 lngPosition) {
    mPosition = lngPosition;
    change();
}

void UnseenNavigator::change() {
    const QString storage = Inavigator_StoragePositionUIID();
    if (storage.isEmpty())
        return;
    bool accepted = false;
    raise(FieldEvent(QStringLiteral("ChangePositionStorage"), in(storage), out(mPosition), out(accepted)));
    if (!accepted) {
        mPosition = mConfirmed == -1 ? mPosition : mConfirmed;
        return;
    }
    mConfirmed = mPosition;
    qint32 stream = Inavigator_NavigatorStream();
    raise(FieldEvent(QStringLiteral("ChangedPosition"), in(storage), out(stream), out(mPosition)));
}
