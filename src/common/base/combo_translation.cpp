#include "combo_translation.h"

#include "run_time_error.h"
#include "value_text.h"

#include <QStringList>

qint32 ComboTransFromUI(const QString &map, qint32 position) {
    const QStringList stored = map.split(u'|');
    const QString token = position < 0 ? QString() : stored.value(position);
    if (!ValueText::isNumeric(token)) {
        throw RunTimeError(ErrorNumber::kConversion, QStringLiteral("ComboTransFromUI"),
                           QStringLiteral("Error setting combo item value "));
    }
    return ValueText::toInteger(token);
}

qint32 ComboTransToUI(const QString &map, const QString &value) {
    if (value.isEmpty())
        return -1;
    const QStringList stored = map.split(u'|');
    const qsizetype position = stored.indexOf(value);
    return qint32(position < 0 ? stored.size() - 1 : position);
}
