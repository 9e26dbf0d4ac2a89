#pragma once

#include "enabler_part.h"
#include "field_type.h"

#include <QString>
#include <QVariant>

class Ifield;

// A field's line in the report. Everything comes from the component, not from the control.
class PrintedField : private EnablerPart {
  public:
    PrintedField(FormItems &items, const FieldServices &services) : EnablerPart(items, services) {}

    // "Label: value", both translated; "Undefined" where there is no value. recordNr is that of the field.
    [[nodiscard]] QString line(const Ifield &field, FieldType type, qint32 recordNr) const;

  private:
    [[nodiscard]] QString comboText(const QString &uiid, qint32 recordNr) const;
    [[nodiscard]] QString checkText(const QString &uiid, qint32 recordNr) const;
    [[nodiscard]] QString valueText(const QString &uiid, qint32 recordNr) const;
};
