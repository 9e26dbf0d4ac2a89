#include "report_banner.h"

#include <QDateTime>
#include <QLocale>

QString reportBanner(const QString &radioModel, const QDateTime &moment, const QString &fileName) {
    const QLocale locale = QLocale::system();
    const QString part = QStringLiteral(" - ");
    return radioModel + part + locale.toString(moment.date(), QLocale::ShortFormat) + u' ' +
           locale.toString(moment.time(), QLocale::ShortFormat) + part + fileName;
}
