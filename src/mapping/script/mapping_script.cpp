#include "mapping_script.h"

#include "string_utilities.h"

#include <QLocale>
#include <QRegularExpression>

namespace {
constexpr int kRuleLength = 45;
constexpr int kIndent = 8;
} // namespace

QStringList MappingScript::header(const Origin &origin) const {
    const QString rule = QStringLiteral("' ") + QString(kRuleLength, u'=');
    QStringList lines{rule};
    if (MappingNames::withoutFolder(fileName) != fileName)
        lines << QStringLiteral("' ") + MappingNames::withoutFolder(fileName);
    lines << QStringLiteral("' Purpose: ") + comments.value(0);
    for (const QString &comment : comments.mid(1))
        lines << QStringLiteral("' ") + QString(kIndent, u' ') + u' ' + comment;
    lines << QStringLiteral("' Date: ") + QLocale::system().toString(origin.date, QLocale::ShortFormat)
          << QStringLiteral("' Generated from Tier %1 version %2").arg(origin.tierName, origin.version)
          << QStringLiteral("' ") << rule;
    return lines;
}

QStringList MappingScript::lines(const Origin &origin) const {
    QStringList lines = header(origin) << QString() << QStringLiteral("Initial State:");
    if (!TrimBlanks(initialStateFile).isEmpty())
        lines << initialStateFile;
    lines << QString() << QStringLiteral("UI Fields:") << uiFields;
    lines << QString() << QStringLiteral("Database Fields:") << databaseFields;
    return lines;
}

QString MappingNames::withoutFolder(const QString &fileName) {
    static const QRegularExpression kSeparator(QStringLiteral("[/\\\\]"));
    return fileName.mid(fileName.lastIndexOf(kSeparator) + 1);
}
