#pragma once

#include "inavigator.h"
#include "unseen_field.h"

// A page navigator that nobody sees. It moves as a shown one does: a new position is first asked for, then told.
class UnseenNavigator final : public UnseenField, public Inavigator {
  public:
    UnseenNavigator(const ControlDefinition &definition, HostControl *container, qint32 tabIndex);

    QString Ifield_GetUIID() const override { return Inavigator_GuideUIID(); }
    qint32 Ifield_GetRecordNr() const override { return mPosition; }

    qint32 Inavigator_NumberRecords() const override { return mRecords; }
    QString Inavigator_GridID() const override { return property("GridID").toString(); }
    QString Inavigator_GuideUIID() const override { return property("GuideUIID").toString(); }
    QVariant Inavigator_GuideValue() const override { return {}; }
    void Inavigator_NumberRecords(qint32 NewNumber) override;
    qint32 Inavigator_NavigatorStream() const override { return Ifield_GetNavigatorStream(); }
    qint32 Inavigator_Position() const override { return mPosition; }
    void Inavigator_Position(qint32 NewPosition) override;
    QString Inavigator_SubNavigator() const override { return property("SubNavigator").toString(); }
    void Inavigator_ForcePositionChange(qint32 lngPosition) override;
    QString Inavigator_StoragePositionUIID() const override { return property("PositionStorageUIID").toString(); }
    QString Inavigator_GridControl() const override { return property("GridControl").toString(); }

  private:
    void change();

    qint32 mRecords = 0;
    qint32 mPosition = 0;
    qint32 mConfirmed = -1;
    bool mMoving = false;
};
