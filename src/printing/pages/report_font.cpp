#include "report_font.h"

QString reportFont(const QStringList &fonts, bool isChineseLocale, const QString &windowFont) {
    const QString first = isChineseLocale ? QStringLiteral("MS Mincho") : QStringLiteral("Courier");
    for (const QString &name : {first, QStringLiteral("Courier New")}) {
        if (fonts.contains(name, Qt::CaseInsensitive))
            return name;
    }
    return windowFont;
}
