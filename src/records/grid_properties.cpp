#include "grid_properties.h"

#include "field_properties.h"

GridProperties GridProperties::read(const FieldProperties &properties) {
    PropertyReader reader(properties);
    GridProperties result;
    GridDesign &design = result.design;
    design.ButtonAdd = reader.flag(QStringLiteral("ButtonAdd"), true);
    design.ButtonInsert = reader.flag(QStringLiteral("ButtonInsert"), true);
    design.ButtonRepeat = reader.flag(QStringLiteral("ButtonRepeat"), true);
    design.ButtonDelete = reader.flag(QStringLiteral("ButtonDelete"), true);
    (void)reader.flag(QStringLiteral("ButtonImport"), true); // stored with the design; no button depends on it
    design.Dynamic = reader.flag(QStringLiteral("Dynamic"), false);
    result.fields = reader.text(QStringLiteral("Fields"), QString());
    design.ID = reader.text(QStringLiteral("ID"), QStringLiteral("Undefined"));
    result.enabled = reader.flag(QStringLiteral("Enabled"), true);
    design.ReadOnly = reader.flag(QStringLiteral("ReadOnly"), false);
    design.RequiresSortBeforeAdd = reader.flag(QStringLiteral("RequiresSortBeforeAdd"), false);
    design.Sortable = reader.flag(QStringLiteral("Sortable"), true);
    reader.refuseUnknown();
    return result;
}
