#include "field_initialisation.h"

#include "common_error_handler.h"
#include "ifield.h"
#include "igrid.h"
#include "inavigator.h"
#include "shown_value.h"
#include "transformer.h"
#include "translation.h"
#include "value_text.h"

#include <algorithm>
#include <cmath>

struct FieldInitialisation::TypeSteps {
    FieldType type;
    std::initializer_list<Step> steps;
};

// The order counts: a combo's enabled state is settled before its value is shown, a text's behind it.
const FieldInitialisation::TypeSteps FieldInitialisation::kTypeSteps[] = {
    {FieldType::Frame, {&FieldInitialisation::label, &FieldInitialisation::help}},
    {FieldType::Text,
     {&FieldInitialisation::label, &FieldInitialisation::textValue, &FieldInitialisation::width,
      &FieldInitialisation::help}},
    {FieldType::Checkbox,
     {&FieldInitialisation::label, &FieldInitialisation::checkValue, &FieldInitialisation::width,
      &FieldInitialisation::help}},
    {FieldType::OptionButton,
     {&FieldInitialisation::label, &FieldInitialisation::checkValue, &FieldInitialisation::width,
      &FieldInitialisation::help}},
    {FieldType::Combo,
     {&FieldInitialisation::label, &FieldInitialisation::comboItems, &FieldInitialisation::comboIndex,
      &FieldInitialisation::numericValue, &FieldInitialisation::width, &FieldInitialisation::help}},
    {FieldType::IdTracker,
     {&FieldInitialisation::label, &FieldInitialisation::idValue, &FieldInitialisation::width,
      &FieldInitialisation::help}},
    {FieldType::Slider,
     {&FieldInitialisation::sliderMin, &FieldInitialisation::sliderMax, &FieldInitialisation::sliderStep,
      &FieldInitialisation::label, &FieldInitialisation::numericValue, &FieldInitialisation::sliderEnabled,
      &FieldInitialisation::width, &FieldInitialisation::help}},
    {FieldType::Grid, {&FieldInitialisation::gridContent}},
    {FieldType::PageNavigator, {&FieldInitialisation::navigator}},
};

FieldInitialisation::FieldInitialisation(FormItems &items, const FieldServices &services)
    : EnablerPart(items, services) {}

void FieldInitialisation::InitialiseField(const ControlItemPtr &item) try {
    const auto *const found = std::ranges::find(kTypeSteps, item->Type(), &TypeSteps::type);
    if (found == std::end(kTypeSteps))
        return;
    for (const Step step : found->steps) {
        if (item->Terminated())
            return;
        (this->*step)(item);
    }
}
ERROR_TAIL()

QVariant FieldInitialisation::SetFieldLabel(const ControlItemPtr &item) try {
    QString label = component().GetLabel(item->Field().Ifield_GetUIID());
    if (item->Terminated())
        return {};
    if (label.isEmpty())
        label = item->Field().Ifield_GetName();
    return item->Field().Ifield_SetName(mServices.translation.NLSStr(label));
}
ERROR_TAIL({})

QVariant FieldInitialisation::SetNavFieldLabel(const ControlItemPtr &item) try {
    QString label = component().GetNavigatorLabel(item->Field().Ifield_GetUIID());
    if (item->Terminated())
        return {};
    if (label.isEmpty())
        label = item->Field().Ifield_GetName();
    const QString recordName = component().GetNavigatorRecordName(item->Field().Ifield_GetUIID());
    if (item->Terminated())
        return {};
    const Translation &translation = mServices.translation;
    return item->Field().Ifield_SetName(translation.NLSStr(label) + u'|' + translation.NLSStr(recordName));
}
ERROR_TAIL({})

void FieldInitialisation::SetEnabledProperty(const ControlItemPtr &item) try {
    const QString uiid = item->Field().Ifield_GetUIID();
    const qint32 level = component().GetFieldVersionLevel(uiid);
    const bool disableOnly = component().GetFieldDisableWhenAbsent(uiid);
    const bool versioning = component().GetProgramAsAvailable();
    const bool absent = versioning ? component().GetVersionLevel() < level : level != 0;
    if (item->Terminated())
        return;
    if (absent) {
        if (!versioning && disableOnly)
            item->Field().Ifield_SetDisabled();
        else
            item->Field().Ifield_SetInvisible();
        return;
    }
    const bool enabled = component().GetFieldEnabled(uiid, item->Field().Ifield_GetRecordNr());
    if (item->Terminated())
        return;
    if (enabled)
        item->Field().Ifield_SetEnabled();
    else
        item->Field().Ifield_SetDisabled();
}
ERROR_TAIL()

void FieldInitialisation::PopulateGrid(const ControlItemPtr &item) try {
    Igrid &grid = item->as<Igrid>();
    const bool dynamic = grid.Igrid_Dynamic();
    bool got = false;
    component().GetGridData(grid.Igrid_GetUIIDList(), dynamic, grid.Igrid_GetArray(), 0, got);
    if (got && !item->Terminated())
        grid.Igrid_Rebind(dynamic);
}
ERROR_TAIL()

void FieldInitialisation::label(const ControlItemPtr &item) { SetFieldLabel(item); }

void FieldInitialisation::disable(const ControlItemPtr &item) {
    if (!item->Terminated())
        item->Field().Ifield_SetDisabled();
}

void FieldInitialisation::enableUnlessUndefined(const ControlItemPtr &item, const QVariant &value) {
    if (ValueText::isUndefined(value))
        disable(item);
    else
        SetEnabledProperty(item);
}

void FieldInitialisation::textValue(const ControlItemPtr &item) {
    const QVariant value = component().GetValue(item->Field().Ifield_GetUIID(), item->Field().Ifield_GetRecordNr());
    if (item->Terminated())
        return;
    if (!ValueText::isUndefined(value))
        item->Field().Ifield_SetValue(value, false);
    enableUnlessUndefined(item, value);
}

void FieldInitialisation::checkValue(const ControlItemPtr &item) {
    const QVariant value = component().GetValue(item->Field().Ifield_GetUIID(), item->Field().Ifield_GetRecordNr());
    if (item->Terminated())
        return;
    item->Field().Ifield_SetValue(numericOrZero(value), false);
    enableUnlessUndefined(item, value);
}

void FieldInitialisation::comboItems(const ControlItemPtr &item) {
    XArrayDB list;
    qint32 comboType = 0;
    const bool got =
        component().GetComboItems(item->Field().Ifield_GetUIID(), item->Field().Ifield_GetRecordNr(), list, comboType);
    if (item->Terminated())
        return;
    if (got) {
        ComboItems &items = item->as<ComboItems>();
        items.Clear();
        for (qint32 row = 0; row <= list.UpperBound(1); ++row)
            items.AddItem(mServices.translation.NLSStr(ValueText::of(list.Value(row, 0))));
    }
    if (!got || list.UpperBound(1) < 0)
        disable(item);
    else
        SetEnabledProperty(item);
}

void FieldInitialisation::comboIndex(const ControlItemPtr &item) {
    const QString map = component().GetIsComboIndex(item->Field().Ifield_GetUIID());
    if (!item->Terminated())
        item->as<ComboItems>().SetComboIndex(map);
}

void FieldInitialisation::numericValue(const ControlItemPtr &item) {
    const QVariant value = component().GetValue(item->Field().Ifield_GetUIID(), item->Field().Ifield_GetRecordNr());
    if (!item->Terminated())
        item->Field().Ifield_SetValue(numericOrZero(value), false);
}

void FieldInitialisation::idValue(const ControlItemPtr &item) {
    const QVariant value = component().GetValue(item->Field().Ifield_GetUIID(), item->Field().Ifield_GetRecordNr());
    if (item->Terminated())
        return;
    XArrayDB list;
    qint32 comboType = 0;
    const bool got =
        component().GetComboItems(item->Field().Ifield_GetUIID(), item->Field().Ifield_GetRecordNr(), list, comboType);
    if (item->Terminated())
        return;
    if (got)
        fillIdItems(*item, list);
    addMissingId(*item, list, value);
    enableUnlessUndefined(item, value);
    if (!item->Terminated())
        item->Field().Ifield_SetValue(idOrNone(value), false);
}

void FieldInitialisation::fillIdItems(clsControlItem &item, const XArrayDB &list) const {
    IdItems &items = item.as<IdItems>();
    items.Clear();
    if (list.UpperBound(1) < 0 || ValueText::isUndefined(list.Value(0, 0)))
        return;
    const qint32 idColumn = std::min(list.UpperBound(2), 1); // a list with one column has its texts as values
    for (qint32 row = 0; row <= list.UpperBound(1); ++row)
        items.AddItem(mServices.translation.NLSStr(ValueText::of(list.Value(row, 0))), list.Value(row, idColumn));
}

// The list must show a value that it does not hold.
void FieldInitialisation::addMissingId(clsControlItem &item, const XArrayDB &list, const QVariant &value) const {
    const QString text = ValueText::of(value);
    if (text.isEmpty())
        return;
    for (qint32 row = list.LowerBound(1); row <= list.UpperBound(1); ++row) {
        if (ValueText::of(list.Value(row, 0)) == text)
            return;
    }
    item.as<IdItems>().AddItem(mServices.translation.NLSStr(text), value);
}

void FieldInitialisation::sliderMin(const ControlItemPtr &item) {
    const qint32 minimum = component().GetMinValue(item->Field().Ifield_GetUIID());
    if (!item->Terminated())
        item->as<SliderRange>().SetMin(minimum);
}

void FieldInitialisation::sliderMax(const ControlItemPtr &item) {
    const qint32 maximum = component().GetMaxValue(item->Field().Ifield_GetUIID());
    if (!item->Terminated())
        item->as<SliderRange>().SetMax(maximum);
}

void FieldInitialisation::sliderStep(const ControlItemPtr &item) {
    const Currency step = component().GetStepValue(item->Field().Ifield_GetUIID());
    if (!item->Terminated())
        item->as<SliderRange>().SetStep(qint32(std::nearbyint(step.toDouble())));
}

// Asks the control, not the component: a slider shows a number always, so "Undefined" never disables it.
void FieldInitialisation::sliderEnabled(const ControlItemPtr &item) {
    enableUnlessUndefined(item, item->Field().Ifield_GetValue());
}

void FieldInitialisation::width(const ControlItemPtr &item) {
    const qint32 characters = component().GetUIWidth(item->Field().Ifield_GetUIID());
    if (!item->Terminated())
        item->Field().Ifield_SetUIWidth(characters);
}

void FieldInitialisation::help(const ControlItemPtr &item) {
    if (!item->Field().Ifield_GetVisible())
        return;
    const qint32 helpId = component().GetHelpID(item->Field().Ifield_GetUIID());
    if (item->Terminated())
        return;
    item->Field().Ifield_SetHelpID(helpId);
    const qint32 whatsThisId = component().GetHelpID(item->Field().Ifield_GetUIID());
    if (!item->Terminated())
        item->Field().Ifield_SetWhatsThisHelpID(whatsThisId);
}

void FieldInitialisation::gridContent(const ControlItemPtr &item) {
    item->as<Igrid>().Igrid_SetColumns();
    if (!item->Terminated() && item->Field().Ifield_GetEnabled())
        PopulateGrid(item);
}

void FieldInitialisation::navigator(const ControlItemPtr &item) {
    const QString guide = item->as<Inavigator>().Inavigator_GuideUIID();
    if (guide.isEmpty())
        return;
    SetNavFieldLabel(item);
    const qint32 records = component().GetNumberOfRecords(guide);
    if (!item->Terminated())
        item->as<Inavigator>().Inavigator_NumberRecords(records);
}
