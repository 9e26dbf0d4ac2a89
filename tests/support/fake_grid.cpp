#include "fake_grid.h"

#include <utility>

FakeGrid::FakeGrid(CallLog &log, const QString &name, QString newUiidList)
    : FakeField(log, name, QStringLiteral("fldGridField")), gridId(uiid + QStringLiteral("ID")),
      uiidList(std::move(newUiidList)) {
    recordNr = 1;
}

void FakeGrid::Igrid_AppendRow(const XArrayDB &NewRowArray) { log("AppendRow", {NewRowArray.Value(0, 0)}); }

void FakeGrid::Igrid_InsertRow(const XArrayDB &NewRowArray, qint32 lngRowNumber) {
    log("InsertRow", {NewRowArray.Value(0, 0), lngRowNumber});
}

void FakeGrid::Igrid_SetValue(const QString &UIID, qint32 RecordNr, const QVariant &Value) {
    log("SetCell", {UIID, RecordNr, Value});
}
