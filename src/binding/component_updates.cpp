#include "component_updates.h"

#include "common_error_handler.h"
#include "field_initialisation.h"
#include "form_items.h"
#include "ifield.h"
#include "igrid.h"
#include "inavigator.h"
#include "shown_value.h"
#include "value_text.h"

namespace {
// A plain substring test, as everywhere that a UIID is looked for in a list.
bool listContains(const clsControlItem &gridItem, const QString &uiid) {
    return gridItem.as<Igrid>().Igrid_GetUIIDList().contains(uiid);
}

bool canBeEnabled(const clsControlItem &item) {
    return item.hasType({FieldType::Text, FieldType::Combo, FieldType::Checkbox, FieldType::IdTracker,
                         FieldType::Slider, FieldType::OptionButton});
}

void setColumnEnabled(Igrid &grid, const QString &uiid, bool enabled) {
    if (enabled)
        grid.Igrid_SetColumnEnabled(uiid);
    else
        grid.Igrid_SetColumnDisabled(uiid);
}

void setEnabledIfVisible(Ifield &field, bool enabled) {
    if (!field.Ifield_GetVisible())
        return;
    if (enabled)
        field.Ifield_SetEnabled();
    else
        field.Ifield_SetDisabled();
}
} // namespace

struct ComponentUpdates::Update {
    const QString &uiid;
    qint32 recordNr;
    const QVariant &value;
};

ComponentUpdates::ComponentUpdates(FormItems &items, const FieldServices &services, FieldInitialisation &fields)
    : EnablerPart(items, services), mFields(fields) {}

void ComponentUpdates::Ienabler_UpdateUIFieldByUIID(const QString &UIID, qint32 RecordNr, const QVariant &Value) try {
    const Update update{UIID, RecordNr, Value};
    for (const ControlItemPtr &item : mItems.all()) {
        if (item->Terminated())
            continue;
        if (item->Type() == FieldType::Grid)
            updateGrid(item, update);
        else if (item->Type() == FieldType::PageNavigator)
            updateNavigator(item, update);
        else
            updateField(item, update);
    }
}
ERROR_TAIL()

void ComponentUpdates::updateGrid(const ControlItemPtr &item, const Update &update) {
    if (listContains(*item, update.uiid))
        item->as<Igrid>().Igrid_SetValue(update.uiid, update.recordNr, update.value);
}

void ComponentUpdates::updateNavigator(const ControlItemPtr &item, const Update &update) {
    Inavigator &navigator = item->as<Inavigator>();
    if (navigator.Inavigator_GuideUIID() == update.uiid)
        navigator.Inavigator_Position(update.recordNr);
    if (item->Terminated() || navigator.Inavigator_StoragePositionUIID() != update.uiid)
        return;
    const qint32 position = ValueText::toIntegerOr(update.value, navigator.Inavigator_Position());
    if (navigator.Inavigator_Position() != position)
        navigator.Inavigator_Position(position);
}

void ComponentUpdates::updateField(const ControlItemPtr &item, const Update &update) {
    if (item->Field().Ifield_GetUIID() != update.uiid || item->Field().Ifield_GetRecordNr() != update.recordNr)
        return;
    item->Field().Ifield_SetValue(shownValue(item->Type(), update.value), false);
    if (!item->Terminated())
        item->Field().Ifield_GetUIIDNotFound(false);
}

void ComponentUpdates::Ienabler_RefreshGridByUIID(const QString &UIID) try {
    for (const ControlItemPtr &item : mItems.ofType(FieldType::Grid)) {
        if (!item->Terminated() && listContains(*item, UIID))
            mFields.PopulateGrid(item);
    }
}
ERROR_TAIL()

void ComponentUpdates::Ienabler_SetEnableDisableByUIID(const QString &UIID, bool Enabled) try {
    for (const ControlItemPtr &item : mItems.all()) {
        if (item->Terminated())
            continue;
        if (item->Type() == FieldType::Grid && listContains(*item, UIID))
            setColumnEnabled(item->as<Igrid>(), UIID, Enabled);
        if (!canBeEnabled(*item) || item->Field().Ifield_GetUIID() != UIID)
            continue;
        item->Field().Ifield_GetUIIDNotFound(false);
        setEnabledIfVisible(item->Field(), Enabled);
        return;
    }
}
ERROR_TAIL()

void ComponentUpdates::Ienabler_UIIDNotFound(const QString &UIID) try {
    for (const ControlItemPtr &item : mItems.all()) {
        if (item->Field().Ifield_GetUIID() != UIID)
            continue;
        item->Field().Ifield_UIIDNotFound();
        return;
    }
}
ERROR_TAIL()
