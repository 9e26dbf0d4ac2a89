#include "navigator_moves.h"

#include "common_error_handler.h"
#include "field_initialisation.h"
#include "form_items.h"
#include "form_validation.h"
#include "ifield.h"
#include "igrid.h"
#include "inavigator.h"
#include "initialising_fields_guard.h"
#include "record_rows.h"
#include "shown_value.h"
#include "transformer.h"
#include "value_text.h"

// The navigator that moves, as it stood when it moved.
struct NavigatorMoves::Move {
    const clsControlItem *source;
    qint32 stream;
    qint32 position;
    QString subNavigator; // control name
    QString gridId;       // "" without a grid
};

NavigatorMoves::NavigatorMoves(FormItems &items, const FieldServices &services, FieldInitialisation &fields,
                               FormValidation &validation)
    : EnablerPart(items, services), mFields(fields), mValidation(validation) {}

void NavigatorMoves::Notify_ChangedPosition(const ControlItemPtr &item) try {
    const InitialisingFieldsGuard guard(mServices.process);
    const Inavigator &navigator = item->as<Inavigator>();
    const Igrid *const grid = mItems.gridOf(*item);
    const Move move{item.get(), navigator.Inavigator_NavigatorStream(), navigator.Inavigator_Position(),
                    navigator.Inavigator_SubNavigator(), grid == nullptr ? QString() : grid->Igrid_GetGridID()};
    for (const ControlItemPtr &follower : mItems.all()) {
        if (!follower->Terminated())
            follow(follower, move);
    }
}
ERROR_TAIL()

void NavigatorMoves::follow(const ControlItemPtr &item, const Move &move) {
    const bool sameStream = item->Field().Ifield_GetNavigatorStream() == move.stream;
    switch (item->Type()) {
    case FieldType::Text:
    case FieldType::Combo:
    case FieldType::Checkbox:
    case FieldType::Slider:
    case FieldType::OptionButton:
        if (sameStream) {
            showRecord(item, move.position);
            refreshEnabled(item, move.position);
        }
        break;
    case FieldType::IdTracker:
        if (sameStream) {
            showRecord(item, move.position);
            mFields.InitialiseField(item);
        }
        break;
    case FieldType::PageNavigator:
        followNavigator(item, move);
        break;
    case FieldType::Grid:
        if (!move.gridId.isEmpty() && item->as<Igrid>().Igrid_GetGridID() == move.gridId)
            item->as<Igrid>().Igrid_SetSelectedRow(rowOfRecord(move.position));
        break;
    default:
        break;
    }
}

void NavigatorMoves::showRecord(const ControlItemPtr &item, qint32 position) {
    const QVariant value = component().GetValue(item->Field().Ifield_GetUIID(), position);
    if (item->Terminated())
        return;
    item->Field().Ifield_SetRecordNumber(position);
    item->Field().Ifield_SetValue(shownValue(item->Type(), value), false);
}

// A field that its version hides stays hidden.
void NavigatorMoves::refreshEnabled(const ControlItemPtr &item, qint32 position) {
    if (item->Terminated() || !item->Field().Ifield_GetVisible())
        return;
    const bool enabled = component().GetFieldEnabled(item->Field().Ifield_GetUIID(), position);
    if (item->Terminated())
        return;
    if (enabled)
        item->Field().Ifield_SetEnabled();
    else
        item->Field().Ifield_SetDisabled();
}

// An inner navigator starts at its first record; -1 before it makes it move whatever it held.
void NavigatorMoves::followNavigator(const ControlItemPtr &item, const Move &move) {
    if (item.get() == move.source)
        return;
    Inavigator &navigator = item->as<Inavigator>();
    if (navigator.Inavigator_NavigatorStream() == move.stream) {
        navigator.Inavigator_Position(move.position);
        return;
    }
    if (move.subNavigator.isEmpty() || item->Control().Name() != move.subNavigator)
        return;
    mFields.InitialiseField(item);
    for (const qint32 position : {-1, 1}) {
        if (!item->Terminated())
            navigator.Inavigator_Position(position);
    }
}

void NavigatorMoves::Notify_ChangedPositionStorage(const ControlItemPtr &item, const FieldEvent &event) try {
    const auto [storageUIID, position, result] = event.unpack<QString, qint32, bool &>();
    result = false;
    bool accepted = mayLeaveRecord(storageUIID, position);
    if (accepted && !item->Terminated())
        component().SetValue(storageUIID, position, 1, true, accepted);
    if (item->Terminated())
        return;
    if (!accepted)
        moveGridBack(item, storageUIID);
    result = accepted;
}
ERROR_TAIL()

bool NavigatorMoves::mayLeaveRecord(const QString &storageUIID, qint32 position) {
    const qint32 stored = ValueText::toIntegerOr(component().GetValue(storageUIID, 1), 0);
    return stored == 0 || stored == position || mValidation.Ienabler_ValidateForm(false);
}

void NavigatorMoves::moveGridBack(const ControlItemPtr &navigator, const QString &storageUIID) {
    if (mItems.gridOf(*navigator) == nullptr)
        return;
    const QVariant stored = component().GetValue(storageUIID, 1);
    if (!navigator->Terminated() && ValueText::isNumeric(stored))
        mItems.gridOf(*navigator)->Igrid_SetSelectedRow(rowOfRecord(ValueText::toInteger(stored)));
}

void NavigatorMoves::Notify_RowSelectionChanged(const ControlItemPtr &item, const FieldEvent &event) try {
    const qint32 record = recordOfRow(event.parameter<qint32>(0));
    for (const ControlItemPtr &navigator : mItems.navigatorsOf(item->as<Igrid>())) {
        if (!navigator->Terminated() && navigator->as<Inavigator>().Inavigator_Position() != record)
            navigator->as<Inavigator>().Inavigator_Position(record);
    }
}
ERROR_TAIL()
