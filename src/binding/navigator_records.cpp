#include "navigator_records.h"

#include "common_error_handler.h"
#include "field_initialisation.h"
#include "form_items.h"
#include "ifield.h"
#include "inavigator.h"
#include "transformer.h"

#include <algorithm>

NavigatorRecords::NavigatorRecords(FormItems &items, const FieldServices &services, FieldInitialisation &fields)
    : EnablerPart(items, services), mFields(fields) {}

void NavigatorRecords::refreshCount(const ControlItemPtr &navigator) {
    if (navigator->Terminated())
        return;
    const qint32 records = component().GetNumberOfRecords(navigator->as<Inavigator>().Inavigator_GuideUIID());
    if (!navigator->Terminated())
        navigator->as<Inavigator>().Inavigator_NumberRecords(records);
}

void NavigatorRecords::Notify_AddRecordNavigator(const ControlItemPtr &item, const FieldEvent & /*event*/) try {
    Inavigator &navigator = item->as<Inavigator>();
    qint32 newRecord = navigator.Inavigator_NumberRecords() + 1;
    bool accepted = false;
    component().AddRecord(navigator.Inavigator_GuideUIID(), navigator.Inavigator_GridID(), newRecord, accepted);
    if (!accepted)
        return;
    refreshCount(item);
    if (!item->Terminated())
        navigator.Inavigator_Position(newRecord);
}
ERROR_TAIL()

void NavigatorRecords::Notify_InsertRecordNavigator(const ControlItemPtr &item, const FieldEvent & /*event*/) try {
    const Inavigator &navigator = item->as<Inavigator>();
    bool accepted = false;
    component().InsertRecord(navigator.Inavigator_GuideUIID(), navigator.Inavigator_Position(),
                             navigator.Inavigator_GridID(), accepted);
    if (accepted)
        refreshCount(item);
}
ERROR_TAIL()

void NavigatorRecords::Notify_RepeatRecordNavigator(const ControlItemPtr &item, const FieldEvent & /*event*/) try {
    Inavigator &navigator = item->as<Inavigator>();
    const qint32 oldPosition = navigator.Inavigator_Position();
    bool accepted = false;
    component().RepeatRecord(navigator.Inavigator_GuideUIID(), oldPosition, navigator.Inavigator_GridID(), accepted);
    if (!accepted)
        return;
    refreshCount(item);
    if (!item->Terminated())
        navigator.Inavigator_Position(oldPosition + 1);
    refreshCount(item);
}
ERROR_TAIL()

void NavigatorRecords::Notify_DeleteRecordNavigator(const ControlItemPtr &item, const FieldEvent &event) try {
    event.parameter<bool &>(1) = true;
    const Inavigator &navigator = item->as<Inavigator>();
    const qint32 oldPosition = navigator.Inavigator_Position();
    bool accepted = false;
    component().DeleteRecord(navigator.Inavigator_GuideUIID(), oldPosition, accepted);
    if (!accepted || item->Terminated())
        return;
    if (component().GetRecordDeletedRefreshNeeded()) {
        for (const ControlItemPtr &grid : mItems.ofType(FieldType::Grid))
            mFields.PopulateGrid(grid);
    }
    refreshCount(item);
    moveAfterDelete(item, oldPosition);
}
ERROR_TAIL()

void NavigatorRecords::moveAfterDelete(const ControlItemPtr &navigator, qint32 oldPosition) {
    if (navigator->Terminated())
        return;
    Inavigator &target = navigator->as<Inavigator>();
    if (const qint32 records = target.Inavigator_NumberRecords(); records != 0)
        target.Inavigator_ForcePositionChange(std::min(oldPosition, records));
    else
        disableStream(target.Inavigator_NavigatorStream());
}

void NavigatorRecords::disableStream(qint32 stream) {
    for (const ControlItemPtr &item : mItems.all()) {
        if (item->Type() != FieldType::PageNavigator && item->Field().Ifield_GetNavigatorStream() == stream)
            item->Field().Ifield_SetDisabled();
    }
}
