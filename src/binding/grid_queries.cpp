#include "grid_queries.h"

#include "common_error_handler.h"
#include "ifield.h"
#include "transformer.h"
#include "translation.h"
#include "value_text.h"

GridQueries::GridQueries(FormItems &items, const FieldServices &services) : EnablerPart(items, services) {}

void GridQueries::Notify_GetComboItems(const FieldEvent &event) try {
    const auto [uiid, recordNr, comboArray, comboType] = event.unpack<QString, qint32, XArrayDB &, qint32 &>();
    component().GetComboItems(uiid, recordNr, comboArray, comboType);
    translateTexts(comboArray);
}
ERROR_TAIL()

// Texts stand in column 0.
void GridQueries::translateTexts(XArrayDB &list) const {
    QStringList texts;
    for (qint32 row = 0; row <= list.UpperBound(1); ++row)
        texts << ValueText::of(list.Value(row, 0));
    mServices.translation.NLSArray(texts);
    for (qint32 row = 0; row <= list.UpperBound(1); ++row)
        list.SetValue(row, 0, texts.at(row));
}

void GridQueries::Notify_GetIDItems(const FieldEvent &event) try {
    const auto [uiid, recordNr, comboArray] = event.unpack<QString, qint32, XArrayDB &>();
    component().GetIDItems(uiid, recordNr, comboArray);
}
ERROR_TAIL()

void GridQueries::Notify_GetValidationString(const ControlItemPtr &item, const FieldEvent &event) try {
    event.parameter<QString &>(0) = component().GetValidationString(item->Field().Ifield_GetUIID());
}
ERROR_TAIL()

void GridQueries::Notify_GetLabel(const FieldEvent &event) try {
    const auto [uiid, label] = event.unpack<QString, QString &>();
    label = mServices.translation.NLSStr(component().GetLabel(uiid));
}
ERROR_TAIL()

void GridQueries::Notify_SetProviderUpdateUIOnFieldChange(bool blnNewVal) try {
    component().SetProviderUpdateUIOnFieldChange(blnNewVal);
}
ERROR_TAIL()
