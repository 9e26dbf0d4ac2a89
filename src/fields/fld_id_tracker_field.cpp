#include "fld_id_tracker_field.h"

#include "combo_list.h"
#include "common_error_handler.h"
#include "field_properties.h"
#include "translation.h"
#include "value_text.h"

fldIdTrackerField::fldIdTrackerField(const FieldServices &services, const FieldProperties &properties, QWidget *parent)
    : ListField(services, parent) {
    PropertyReader reader(properties);
    readList(reader);
    reader.refuseUnknown();
    connect(&list(), &ComboList::aboutToDropDown, this, &fldIdTrackerField::Combo1_DropDown);
    layOut();
}

void fldIdTrackerField::Clear() { list().clear(); }

void fldIdTrackerField::AddItem(const QString &Text, const QVariant &Value) {
    const int chosen = list().currentIndex();
    list().addItem(Text);
    list().setCurrentIndex(chosen);
    mValues.insert(Text, Value);
}

void fldIdTrackerField::Combo1_DropDown() try { raise(FieldEvent(QStringLiteral("Initialise"))); }
ERROR_TAIL()

QVariant fldIdTrackerField::Ifield_GetValue() try {
    const auto found = mValues.constFind(Text());
    if (ListIndex() < 0 || found == mValues.constEnd()) {
        throw RunTimeError(ErrorNumber::kCollectionKey, QStringLiteral("fldIdTrackerField"),
                           QStringLiteral("Element not found"));
    }
    return *found;
}
ERROR_TAIL({})

bool fldIdTrackerField::Ifield_SetValue(const QVariant &Value, bool blnValidate) try {
    if (!ValueText::isUndefined(Value) && ListCount() > 0)
        show(Value);
    return !blnValidate || raiseManualValidate();
}
ERROR_TAIL(false)

void fldIdTrackerField::show(const QVariant &value) {
    const QString text = services().translation.NLSStr(ValueText::of(value));
    if (FindValueIndex(text) < 0)
        AddItem(text, value);
    list().setCurrentIndex(FindValueIndex(text));
}
