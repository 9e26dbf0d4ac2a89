#include "call_log.h"

#include "value_text.h"

#include <utility>

QString CallLog::textOf(const QVariant &argument) {
    if (argument.typeId() == QMetaType::Bool)
        return argument.toBool() ? QStringLiteral("true") : QStringLiteral("false");
    return ValueText::of(argument);
}

void CallLog::add(const QString &operation, const QVariantList &arguments) {
    QStringList texts;
    for (const QVariant &argument : arguments)
        texts << textOf(argument);
    mLines << operation + u'(' + texts.join(QStringLiteral(", ")) + u')';
}

QStringList CallLog::linesOf(const QString &operation) const {
    QStringList result;
    for (const QString &line : mLines) {
        if (line.startsWith(operation + u'('))
            result << line;
    }
    return result;
}

QStringList CallLog::take() { return std::exchange(mLines, {}); }
