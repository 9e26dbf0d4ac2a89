#include "cell_format.h"

#include "string_utilities.h"
#include "value_text.h"

#include <algorithm>

namespace {
bool isDigitPlace(QChar c) { return c == u'0' || c == u'9' || c == u'#'; }

// Rounded in decimal, so that no digit of a long text is lost or made up.
QString withDecimals(const QString &digits, qsizetype decimals) {
    const qsizetype point = digits.indexOf(u'.');
    const QString fraction = point < 0 ? QString() : digits.mid(point + 1);
    const QString whole = point < 0 ? digits : digits.left(point);
    if (fraction.size() <= decimals)
        return whole + (decimals == 0 ? QString() : u'.' + fraction.leftJustified(decimals, u'0'));
    return QString::number(digits.toDouble(), 'f', int(decimals));
}

bool isPlainDecimal(const QString &text) {
    const bool known =
        std::all_of(text.begin(), text.end(), [](QChar c) { return (c >= u'0' && c <= u'9') || c == u'.'; });
    return known && ValueText::isNumeric(text);
}
} // namespace

CellFormat CellFormat::of(const QString &text) {
    const qsizetype blank = text.indexOf(u' ');
    const QString mask = blank < 0 ? text : text.left(blank);
    return {LocalizeString(mask), blank < 0 ? QString() : text.mid(blank + 1)};
}

QString CellFormat::inputMask() const {
    QString result;
    for (const QChar c : mask)
        result += isDigitPlace(c) ? QStringLiteral("0") : QStringLiteral("\\") + c;
    return result;
}

QString CellFormat::formatted(const QString &text) const {
    QString number = TrimBlanks(text);
    number.replace(DecimalSymbol(), QStringLiteral("."));
    const bool negative = number.startsWith(u'-');
    const QString digits = negative ? number.mid(1) : number;
    if (numberFormat.isEmpty() || !isPlainDecimal(digits))
        return text;
    const qsizetype point = numberFormat.indexOf(u'.');
    const QString wholeFormat = point < 0 ? numberFormat : numberFormat.left(point);
    QString result = withDecimals(digits, point < 0 ? 0 : numberFormat.size() - point - 1);
    const qsizetype wholeDigits = result.contains(u'.') ? result.indexOf(u'.') : result.size();
    result.prepend(QString(std::max<qsizetype>(0, wholeFormat.count(u'0') - wholeDigits), u'0'));
    return (negative ? QStringLiteral("-") : QString()) + LocalizeString(result);
}
