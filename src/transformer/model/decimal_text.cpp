#include "decimal_text.h"

namespace {

constexpr qint64 kFarOutside = qint64(1) << 40;

bool isDigit(QChar letter) { return letter >= QLatin1Char('0') && letter <= QLatin1Char('9'); }

} // namespace

DecimalText DecimalText::parse(const QString &text, qint32 decimals) {
    QStringView rest = QStringView(text).trimmed();
    const bool negative = rest.startsWith(QLatin1Char('-'));
    if (negative || rest.startsWith(QLatin1Char('+')))
        rest = rest.mid(1);
    qint64 value = 0;
    qint32 places = -1; // digits behind the separator; -1 before it
    bool cut = false;
    bool anyDigit = false;
    for (const QChar letter : rest) {
        const bool separator = letter == QLatin1Char('.') || letter == QLatin1Char(',');
        if (separator ? places >= 0 : !isDigit(letter))
            return {};
        if (separator) {
            places = 0;
            continue;
        }
        anyDigit = true;
        if (places >= decimals) {
            cut = cut || letter != QLatin1Char('0');
            continue;
        }
        value = qMin(value * 10 + letter.digitValue(), kFarOutside);
        places += places >= 0 ? 1 : 0;
    }
    if (!anyDigit)
        return {};
    for (qint32 place = qMax(places, 0); place < decimals; ++place)
        value = qMin(value * 10, kFarOutside);
    if (negative)
        value = -value - (cut ? 1 : 0);
    return {cut ? State::MoreDecimals : State::Exact, value};
}

QString DecimalText::of(qint32 value, qint32 decimals) {
    QString digits = QString::number(qAbs(qint64(value)));
    if (decimals > 0) {
        digits = digits.rightJustified(decimals + 1, QLatin1Char('0'));
        digits.insert(digits.size() - decimals, QLatin1Char('.'));
    }
    return value < 0 ? QLatin1Char('-') + digits : digits;
}
