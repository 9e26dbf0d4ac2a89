#include "scripted_grid_host.h"

void ScriptedGridHost::frmField_ObjectEvent(const FieldEvent &Event) {
    const QString &name = Event.name();
    if (on)
        on(name);
    if (name == QStringLiteral("GetComboItems") || name == QStringLiteral("GetIDItems")) {
        const auto [uiid, record] = Event.unpack<QString, qint32>();
        heard << QStringLiteral("%1 %2 %3").arg(name, uiid).arg(record);
        fillList(Event);
        if (name == QStringLiteral("GetComboItems"))
            Event.parameter<qint32 &>(3) = scope;
        return;
    }
    heard << name;
    if (name == QStringLiteral("GetLabel"))
        Event.parameter<QString &>(1) = labels.value(Event.parameter<QString>(0), Event.parameter<QString>(0));
    if (name == QStringLiteral("ManualValidate"))
        Event.parameter<bool &>(0) = refuses;
}

void ScriptedGridHost::fillList(const FieldEvent &event) const {
    const QStringList items = lists.value(event.parameter<QString>(0));
    auto &array = event.parameter<XArrayDB &>(2);
    array.Clear();
    array.ReDim(qint32(items.size()) - 1, 0);
    for (qint32 row = 0; row < qint32(items.size()); ++row)
        array.SetValue(row, 0, items[row]);
}
