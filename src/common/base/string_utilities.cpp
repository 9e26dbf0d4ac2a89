#include "string_utilities.h"

#include "value_text.h"

#include <QLocale>
#include <QStringList>

QString LeftPadString(const QString &text, QChar fill, int width) { return text.rightJustified(width, fill); }

QString MakeParamString(const std::vector<QVariant> &values) {
    QStringList parts;
    for (const QVariant &value : values)
        parts << ValueText::of(value);
    return parts.join(u'|');
}

QString DecimalSymbol() { return QLocale::system().decimalPoint().left(1); }

QString LocalizeString(const QString &text) {
    QString result = text;
    return result.replace(u'.', DecimalSymbol());
}

bool IsExecutingFromIDE() {
#ifdef KX_DEVELOPMENT_RUN
    return true;
#else
    return false;
#endif
}

QString TrimBlanks(const QString &text) {
    qsizetype from = 0;
    qsizetype to = text.size();
    while (from < to && text[from] == u' ')
        ++from;
    while (to > from && text[to - 1] == u' ')
        --to;
    return text.mid(from, to - from);
}
