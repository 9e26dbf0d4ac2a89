#include "printed_field.h"

#include "combo_translation.h"
#include "ifield.h"
#include "transformer.h"
#include "translation.h"
#include "value_text.h"

QString PrintedField::line(const Ifield &field, FieldType type, qint32 recordNr) const {
    const QString uiid = field.Ifield_GetUIID();
    QString value;
    if (type == FieldType::Combo)
        value = comboText(uiid, recordNr);
    else if (isOneOf(type, {FieldType::Checkbox, FieldType::OptionButton}))
        value = checkText(uiid, recordNr);
    else
        value = valueText(uiid, recordNr);
    const Translation &translation = mServices.translation;
    return translation.NLSStr(component().GetLabel(uiid)) + QStringLiteral(": ") + translation.NLSStr(value);
}

QString PrintedField::valueText(const QString &uiid, qint32 recordNr) const {
    const QString text = ValueText::of(component().GetValue(uiid, recordNr));
    return text.isEmpty() ? ValueText::undefined() : text;
}

QString PrintedField::checkText(const QString &uiid, qint32 recordNr) const {
    return ValueText::number(component().GetValue(uiid, recordNr)) == 1.0 ? QStringLiteral("Yes")
                                                                          : QStringLiteral("No");
}

QString PrintedField::comboText(const QString &uiid, qint32 recordNr) const {
    const QVariant value = component().GetValue(uiid, recordNr);
    const QString map = component().GetIsComboIndex(uiid);
    XArrayDB list;
    qint32 comboType = 0;
    component().GetComboItems(uiid, recordNr, list, comboType);
    const bool isNumber = ValueText::isNumeric(value);
    const qint32 direct = isNumber ? ValueText::toIntegerOr(value, -1) : -1;
    const qint32 row = isNumber && !map.isEmpty() ? ComboTransToUI(map, ValueText::of(value)) : direct;
    if (row < 0 || row > list.UpperBound(1))
        return ValueText::undefined();
    return ValueText::of(list.Value(row, 0));
}
