#pragma once

#include "fake_field.h"
#include "igrid.h"

#include <utility>

// A grid without a widget. Its current cell is what uiid, recordNr and value say; cellType is the cell's type name.
class FakeGrid final : public FakeField, public Igrid {
  public:
    // The grid id is the uiid behind the name's prefix, and "ID".
    FakeGrid(CallLog &log, const QString &name, QString newUiidList)
        : FakeField(log, name, QStringLiteral("fldGridField")), gridId(uiid + QStringLiteral("ID")),
          uiidList(std::move(newUiidList)) {
        recordNr = 1;
    }

    QString cellType = QStringLiteral("fldTextField");
    QString gridId;
    QString uiidList;
    bool dynamic = true;
    XArrayDB array;
    QStringList heads;

    QString Ifield_GetTypeName() const override { return cellType; }

    void Igrid_SetColumnDisabled(const QString &UIID) override { log("SetColumnDisabled", {UIID}); }
    void Igrid_SetColumnEnabled(const QString &UIID) override { log("SetColumnEnabled", {UIID}); }
    void Igrid_AppendRow(const XArrayDB &NewRowArray) override { log("AppendRow", {NewRowArray.Value(0, 0)}); }
    void Igrid_InsertRow(const XArrayDB &NewRowArray, qint32 lngRowNumber) override {
        log("InsertRow", {NewRowArray.Value(0, 0), lngRowNumber});
    }
    QStringList Igrid_GetHeader() const override { return heads; }
    XArrayDB &Igrid_GetArray() override { return array; }
    void Igrid_SetColumns() override { log("SetColumns"); }
    void Igrid_Rebind(bool Dynamic) override { log("Rebind", {Dynamic}); }
    QString Igrid_GetUIIDList() const override { return uiidList; }
    QString Igrid_GetGridID() const override { return gridId; }
    void Igrid_SetValue(const QString &UIID, qint32 RecordNr, const QVariant &Value) override {
        log("SetCell", {UIID, RecordNr, Value});
    }
    void Igrid_SetSelectedRow(qint32 lngRow) override { log("SetSelectedRow", {lngRow}); }
    void Igrid_RevertCurrentCell() override { log("RevertCurrentCell"); }
    bool Igrid_Dynamic() const override { return dynamic; }
};
