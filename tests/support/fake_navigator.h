#pragma once

#include "fake_field.h"
#include "inavigator.h"

#include <algorithm>

// A page navigator without a widget. It moves as a real one does: a new position is first asked for
// ("ChangePositionStorage"), then told ("ChangedPosition"); a refused one goes back; a move inside a move is ignored.
class FakeNavigator : public FakeField, public Inavigator {
  public:
    // GuideUIID is the name without its prefix.
    FakeNavigator(CallLog &log, const QString &name) : FakeField(log, name, QStringLiteral("fldPageNavigator")) {}

    qint32 numberRecords = 0;
    qint32 position = 0;
    QString gridId;
    QString subNavigator;
    QString storageUIID; // empty: no events
    QString gridControl;

    // Raises the two events for the present position, if it differs from the last one that was accepted.
    void change() {
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

    qint32 Inavigator_NumberRecords() const override { return numberRecords; }
    QString Inavigator_GridID() const override { return gridId; }
    QString Inavigator_GuideUIID() const override { return uiid; }
    QVariant Inavigator_GuideValue() const override { return {}; }
    void Inavigator_NumberRecords(qint32 NewNumber) override {
        log("NumberRecords", {NewNumber});
        numberRecords = NewNumber;
        position = std::min(position, NewNumber);
        mConfirmed = -1;
    }
    qint32 Inavigator_NavigatorStream() const override { return stream; }
    qint32 Inavigator_Position() const override { return position; }
    void Inavigator_Position(qint32 NewPosition) override {
        if (mMoving)
            return;
        log("Position", {NewPosition});
        mMoving = true;
        position = NewPosition;
        change();
        mMoving = false;
    }
    QString Inavigator_SubNavigator() const override { return subNavigator; }
    void Inavigator_ForcePositionChange(qint32 lngPosition) override {
        log("ForcePositionChange", {lngPosition});
        position = lngPosition;
        mConfirmed = -1;
        change();
    }
    QString Inavigator_StoragePositionUIID() const override { return storageUIID; }
    QString Inavigator_GridControl() const override { return gridControl; }

  private:
    qint32 mConfirmed = -1;
    bool mMoving = false;
};
