#include "fld_combo_field.h"

#include "combo_list.h"
#include "combo_translation.h"
#include "common_error_handler.h"
#include "field_properties.h"
#include "message_style.h"
#include "string_utilities.h"
#include "translation.h"
#include "value_text.h"

#include <algorithm>

fldComboField::fldComboField(const FieldServices &services, const FieldProperties &properties, QWidget *parent)
    : ListField(services, parent) {
    PropertyReader reader(properties);
    readList(reader);
    mComboIndex = reader.text(QStringLiteral("ComboIndex"), QString());
    reader.refuseUnknown();
    layOut();
}

void fldComboField::Clear() { list().clear(); }

void fldComboField::AddItem(const QString &Text) {
    // A list fills without choosing its first item by itself.
    const int chosen = list().currentIndex();
    list().addItem(Text);
    list().setCurrentIndex(chosen);
}

QVariant fldComboField::Ifield_GetValue() try {
    return mComboIndex.isEmpty() ? ListIndex() : ComboTransFromUI(mComboIndex, ListIndex());
}
ERROR_TAIL({})

bool fldComboField::Ifield_SetValue(const QVariant &Value, bool blnValidate) try {
    if (ListCount() == 0)
        return false;
    const QString target = targetFor(Value);
    if (!ValueText::isNumeric(target)) {
        if (!target.isEmpty() && !ValueText::isUndefined(Value))
            complain(QStringLiteral("Combo field '%0:S' is being set to item '%1:S' which is not numeric"), target);
        return false;
    }
    const qint32 index = ValueText::toInteger(target);
    if (index >= ListCount()) {
        complain(QStringLiteral("Combo field '%0:S' is being set to item '%1:S' which is too large"), target);
        return false;
    }
    select(index);
    return !blnValidate || raiseManualValidate();
}
ERROR_TAIL(false)

QString fldComboField::targetFor(const QVariant &value) const {
    const QString text = ValueText::of(value);
    const QString target = mComboIndex.isEmpty() ? text : QString::number(ComboTransToUI(mComboIndex, text));
    return services().translation.NLSStr(target);
}

void fldComboField::select(qint32 index) {
    if (ValueText::isUndefined(List(0)))
        list().setItemText(0, QString());
    list().setCurrentIndex(std::max(index, -1));
}

void fldComboField::complain(const QString &prompt, const QString &target) const {
    services().boxes.TranslateMsgBox(prompt, MessageStyle::kExclamation, QString(),
                                     MakeParamString({Ifield_GetName(), target}));
}
