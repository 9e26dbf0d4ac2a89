#pragma once

#include <QString>
#include <QVariant>

// What a page navigator adds to Ifield. Positions are record numbers from 1.
class Inavigator {
  public:
    virtual ~Inavigator() = default;

    virtual qint32 Inavigator_NumberRecords() const = 0;
    virtual QString Inavigator_GridID() const = 0;
    virtual QString Inavigator_GuideUIID() const = 0;
    virtual QVariant Inavigator_GuideValue() const = 0;
    virtual void Inavigator_NumberRecords(qint32 NewNumber) = 0;
    virtual qint32 Inavigator_NavigatorStream() const = 0;
    virtual qint32 Inavigator_Position() const = 0;
    virtual void Inavigator_Position(qint32 NewPosition) = 0;
    // Control name of the navigator inside this one's record; "" for none.
    virtual QString Inavigator_SubNavigator() const = 0;
    virtual void Inavigator_ForcePositionChange(qint32 lngPosition) = 0;
    // The design property PositionStorageUIID.
    virtual QString Inavigator_StoragePositionUIID() const = 0;
    // Control name of the grid that shows the navigator's records; "" for none.
    virtual QString Inavigator_GridControl() const = 0;
};
