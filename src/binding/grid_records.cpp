#include "grid_records.h"

#include "common_error_handler.h"
#include "field_initialisation.h"
#include "form_items.h"
#include "ifield.h"
#include "igrid.h"
#include "inavigator.h"
#include "navigator_records.h"
#include "record_errors.h"
#include "record_rows.h"
#include "transformer.h"

#include <algorithm>
#include <utility>
#include <vector>

GridRecords::GridRecords(FormItems &items, const FieldServices &services, FieldInitialisation &fields,
                         NavigatorRecords &navigators)
    : EnablerPart(items, services), mFields(fields), mNavigators(navigators) {}

void GridRecords::fetchRow(const ControlItemPtr &item, qint32 record,
                           const std::function<void(Igrid &, const XArrayDB &)> &place) {
    if (item->Terminated())
        return;
    Igrid &grid = item->as<Igrid>();
    XArrayDB row;
    bool got = false;
    component().GetGridData(grid.Igrid_GetUIIDList(), grid.Igrid_Dynamic(), row, record, got);
    if (got && !item->Terminated())
        place(grid, row);
}

// Another grid of the form may show the same records.
void GridRecords::refill(const ControlItemPtr &item) {
    if (item->Terminated())
        return;
    const QStringList uiids = item->as<Igrid>().Igrid_GetUIIDList().split(u'|', Qt::SkipEmptyParts);
    mFields.PopulateGrid(item);
    for (const ControlItemPtr &other : mItems.ofType(FieldType::Grid)) {
        if (other == item || other->Terminated())
            continue;
        const QStringList shown = other->as<Igrid>().Igrid_GetUIIDList().split(u'|', Qt::SkipEmptyParts);
        if (std::ranges::any_of(shown, [&uiids](const QString &uiid) { return uiids.contains(uiid); }))
            mFields.PopulateGrid(other);
    }
}

void GridRecords::refreshNavigators(const ControlItemPtr &item) {
    if (item->Terminated())
        return;
    for (const ControlItemPtr &navigator : mItems.navigatorsOf(item->as<Igrid>()))
        mNavigators.refreshCount(navigator);
}

void GridRecords::Notify_AddRecord(const ControlItemPtr &item) try {
    qint32 newRecord = 0;
    bool accepted = false;
    component().AddRecord(item->Field().Ifield_GetUIID(), item->as<Igrid>().Igrid_GetGridID(), newRecord, accepted);
    if (accepted)
        fetchRow(item, newRecord, [](Igrid &grid, const XArrayDB &row) { grid.Igrid_AppendRow(row); });
    refreshNavigators(item);
    if (!accepted || item->Terminated())
        return;
    for (const ControlItemPtr &bound : mItems.navigatorsOf(item->as<Igrid>())) {
        if (bound->Terminated())
            return;
        Inavigator &navigator = bound->as<Inavigator>();
        navigator.Inavigator_Position(navigator.Inavigator_NumberRecords());
    }
} catch (...) {
    passMissingObject(mErrors, __func__);
}

void GridRecords::Notify_InsertRecord(const ControlItemPtr &item) try {
    const qint32 current = item->Field().Ifield_GetRecordNr();
    const qint32 record = current == 0 ? 1 : current;
    bool accepted = false;
    component().InsertRecord(item->Field().Ifield_GetUIID(), record, item->as<Igrid>().Igrid_GetGridID(), accepted);
    if (accepted)
        fetchRow(item, record,
                 [record](Igrid &grid, const XArrayDB &row) { grid.Igrid_InsertRow(row, rowOfRecord(record)); });
    refreshNavigators(item);
} catch (...) {
    passMissingObject(mErrors, __func__);
}

void GridRecords::Notify_RepeatRecord(const ControlItemPtr &item) try {
    const qint32 record = item->Field().Ifield_GetRecordNr();
    if (record == 0)
        return;
    bool accepted = false;
    component().RepeatRecord(item->Field().Ifield_GetUIID(), record, item->as<Igrid>().Igrid_GetGridID(), accepted);
    const qint32 copy = record + 1;
    if (accepted)
        fetchRow(item, copy,
                 [copy](Igrid &grid, const XArrayDB &row) { grid.Igrid_InsertRow(row, rowOfRecord(copy)); });
    refreshNavigators(item);
} catch (...) {
    passMissingObject(mErrors, __func__);
}

void GridRecords::Notify_DeleteRecord(const ControlItemPtr &item, const FieldEvent &event) try {
    std::vector<std::pair<ControlItemPtr, qint32>> positions;
    for (const ControlItemPtr &navigator : mItems.navigatorsOf(item->as<Igrid>()))
        positions.emplace_back(navigator, navigator->as<Inavigator>().Inavigator_Position());

    bool accepted = false;
    component().DeleteRecord(item->Field().Ifield_GetUIID(), item->Field().Ifield_GetRecordNr(), accepted);
    if (item->Terminated())
        return;
    const bool refill = component().GetRecordDeletedRefreshNeeded();
    if (refill && accepted && !item->Terminated())
        mFields.PopulateGrid(item);
    if (!refill || accepted)
        event.parameter<bool &>(0) = true;
    refreshNavigators(item);
    if (!accepted || !refill)
        return;
    for (const auto &[navigator, position] : positions)
        mNavigators.moveAfterDelete(navigator, position);
} catch (...) {
    passMissingObject(mErrors, __func__);
}

void GridRecords::Notify_ImportRecordByPaste(const ControlItemPtr &item, const FieldEvent &event) try {
    if (!mServices.clipboard.HasText())
        return;
    const auto [uiidList, selectedRecords] = event.unpack<QString, QString>();
    component().ImportRecordByPaste(item->as<Igrid>().Igrid_GetGridID(), uiidList, mServices.shell.MainWindow(),
                                    QString(), selectedRecords);
    refill(item);
    refreshNavigators(item);
}
ERROR_TAIL()

void GridRecords::Notify_ImportRecordByDrop(const ControlItemPtr &item, const FieldEvent &event) try {
    const ControlItemPtr active = mItems.Ienabler_GetActiveControl();
    component().ImportRecordByDrop(item->as<Igrid>().Igrid_GetGridID(), event.parameter<QString>(1),
                                   event.parameter<const QMimeData *>(2), mServices.shell.MainWindow(), true);
    if (active != nullptr && !active->Terminated())
        active->SetFocus();
    refill(item);
    refreshNavigators(item);
}
ERROR_TAIL()

void GridRecords::Notify_SortColumnByUIID(const ControlItemPtr &item, const FieldEvent &event) try {
    if (item->Type() != FieldType::Grid)
        return;
    component().SortColumn(event.parameter<QString>(0), true);
    if (!item->Terminated())
        mFields.PopulateGrid(item);
    component().SetDataChanged();
}
ERROR_TAIL()
