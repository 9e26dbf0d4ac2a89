#include "navigator_position.h"

#include "navigator_slider.h"

#include <QScopedValueRollback>

#include <algorithm>

namespace {
constexpr qint32 kNone = -1;
constexpr qint32 kManyRecords = 10;

qint32 tickFrequency(qint32 count) { return count > kManyRecords ? count / kManyRecords : 1; }
} // namespace

qint32 NavigatorPosition::Position() const { return mSlider.value(); }

void NavigatorPosition::NumberRecords(qint32 count) {
    mNumberRecords = std::max(count, 0);
    if (count < 1) {
        mSlider.SetRange(0, 1, 0);
    } else if (count == 1) {
        // Two stops, since a slider needs them; the second cannot be reached.
        mSlider.SetRange(1, 2, 0);
    } else {
        if (Position() > count)
            Position(count);
        mSlider.SetRange(1, count, tickFrequency(count));
    }
    if (!mOwner.Gone())
        Position(std::min(Position(), mNumberRecords));
    mConfirmed = kNone;
    if (!mOwner.Gone())
        mOwner.SetActionkeysEnabledDisabled();
}

void NavigatorPosition::Position(qint32 position) {
    mSlider.setValue(position);
    if (mOwner.Gone())
        return;
    if (mNumberRecords == 0) {
        mOwner.UpdateTheLocationTextbox(0);
        return;
    }
    mOwner.UpdateTheLocationTextbox(Position());
    if (Position() != 0)
        mOwner.StoreIfNone(Position());
}

void NavigatorPosition::MoveTo(qint32 position) {
    if (mMoving)
        return;
    const QScopedValueRollback<bool> moving(mMoving, true);
    mOwner.EnableSteps(position);
    if (Position() == position)
        sldSelector_Change();
    else
        mSlider.setValue(position);
    if (!mOwner.Gone())
        mOwner.UpdateTheLocationTextbox(Position());
}

void NavigatorPosition::ForcePositionChange(qint32 position) {
    Position(position);
    if (!mOwner.Gone())
        change();
}

void NavigatorPosition::sldSelector_Change() {
    if (mNumberRecords == 0) {
        mSlider.setValue(0);
        return;
    }
    if (mNumberRecords == 1)
        mSlider.setValue(1);
    if (Position() != mConfirmed && !change())
        mMoving = false;
}

void NavigatorPosition::sldSelector_Scroll(qint32 thumb) {
    if (mNumberRecords > 1)
        mOwner.UpdateTheLocationTextbox(thumb);
}

bool NavigatorPosition::change() {
    if (!mOwner.HasStorage())
        return false;
    const bool accepted = mOwner.AskPosition(Position());
    if (mOwner.Gone())
        return false;
    if (!accepted) {
        goBack();
        return false;
    }
    mConfirmed = Position();
    mOwner.EnableSteps(mConfirmed);
    mOwner.TellPosition(mConfirmed);
    if (!mOwner.Gone())
        mOwner.UpdateTheLocationTextbox(Position());
    return true;
}

void NavigatorPosition::goBack() {
    if (mConfirmed != kNone)
        mSlider.setValue(mConfirmed);
    // The names may have followed the thumb.
    mOwner.EnableSteps(Position());
    mOwner.UpdateTheLocationTextbox(Position());
}

void NavigatorPosition::First() {
    if (mNumberRecords > 0)
        mSlider.setValue(1);
}

void NavigatorPosition::Back() {
    if (mNumberRecords > 1)
        mSlider.setValue(Position() - 1);
}

void NavigatorPosition::Forward() {
    if (mNumberRecords > 1)
        mSlider.setValue(Position() + 1);
}

void NavigatorPosition::Last() {
    if (mNumberRecords > 1)
        mSlider.setValue(mSlider.maximum());
}
