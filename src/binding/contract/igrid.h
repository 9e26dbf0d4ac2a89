#pragma once

#include "xarray_db.h"

#include <QString>
#include <QStringList>

// What a grid adds to Ifield. Rows count from 0, records from 1.
class Igrid {
  public:
    virtual ~Igrid() = default;

    virtual void Igrid_SetColumnDisabled(const QString &UIID) = 0;
    virtual void Igrid_SetColumnEnabled(const QString &UIID) = 0;
    virtual void Igrid_AppendRow(const XArrayDB &NewRowArray) = 0;
    virtual void Igrid_InsertRow(const XArrayDB &NewRowArray, qint32 lngRowNumber) = 0;
    // One caption a column, with a blank before it and padded on the left to the field's width; none while disabled.
    virtual QStringList Igrid_GetHeader() const = 0;
    // The grid's own array, to be filled in place.
    virtual XArrayDB &Igrid_GetArray() = 0;
    virtual void Igrid_SetColumns() = 0;
    virtual void Igrid_Rebind(bool Dynamic) = 0;
    virtual QString Igrid_GetUIIDList() const = 0;
    virtual QString Igrid_GetGridID() const = 0;
    virtual void Igrid_SetValue(const QString &UIID, qint32 RecordNr, const QVariant &Value) = 0;
    virtual void Igrid_SetSelectedRow(qint32 lngRow) = 0;
    virtual void Igrid_RevertCurrentCell() = 0;
    // The design property "dynamic".
    virtual bool Igrid_Dynamic() const = 0;
};
