#include "value_text.h"

#include "currency.h"
#include "run_time_error.h"
#include "string_utilities.h"

#include <QLocale>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {
// Only digits, sign, point and exponent: toDouble would also take "inf" and "nan".
bool hasOnlyNumberCharacters(QStringView text) {
    return std::ranges::all_of(text,
                               [](QChar c) { return (c >= u'0' && c <= u'9') || QStringView(u"+-.eE").contains(c); });
}

std::optional<double> finiteOrNone(double number) {
    return std::isfinite(number) ? std::optional(number) : std::nullopt;
}
} // namespace

namespace ValueText {
QString of(const QVariant &value) {
    if (!value.isValid())
        return {};
    switch (value.typeId()) {
    case QMetaType::Bool:
        return value.toBool() ? QStringLiteral("-1") : QStringLiteral("0");
    case QMetaType::Int:
        return QString::number(value.toInt());
    case QMetaType::Double:
    case QMetaType::Float:
        return QString::number(value.toDouble(), 'g', QLocale::FloatingPointShortest);
    default:
        break;
    }
    if (value.metaType() == QMetaType::fromType<Currency>())
        return value.value<Currency>().toString();
    return value.toString();
}

std::optional<double> number(const QVariant &value) {
    switch (value.typeId()) {
    case QMetaType::UnknownType:
        return std::nullopt;
    case QMetaType::Bool:
        return value.toBool() ? -1.0 : 0.0;
    case QMetaType::Int:
        return value.toInt();
    case QMetaType::Double:
        return finiteOrNone(value.toDouble());
    default:
        break;
    }
    QString text = TrimBlanks(of(value));
    if (!hasOnlyNumberCharacters(text))
        text.replace(DecimalSymbol(), QStringLiteral("."));
    if (!hasOnlyNumberCharacters(text))
        return std::nullopt;
    bool ok = false;
    const double result = QLocale::c().toDouble(text, &ok);
    return ok ? finiteOrNone(result) : std::nullopt;
}

bool isNumeric(const QVariant &value) { return number(value).has_value(); }

qint32 toInteger(const QVariant &value) {
    const std::optional<double> parsed = number(value);
    if (!parsed)
        throw RunTimeError(ErrorNumber::kConversion, QStringLiteral("ValueText"), QStringLiteral("Type mismatch"));
    const double rounded = std::nearbyint(*parsed); // the default rounding mode takes halves to even
    if (rounded < std::numeric_limits<qint32>::min() || rounded > std::numeric_limits<qint32>::max())
        throw RunTimeError(ErrorNumber::kConversion, QStringLiteral("ValueText"), QStringLiteral("Overflow"));
    return qint32(rounded);
}

qint32 toIntegerOr(const QVariant &value, qint32 fallback) {
    const std::optional<double> parsed = number(value);
    const bool fits =
        parsed && *parsed >= std::numeric_limits<qint32>::min() && *parsed <= std::numeric_limits<qint32>::max();
    return fits ? qint32(std::nearbyint(*parsed)) : fallback;
}

QString undefined() { return QStringLiteral("Undefined"); }

bool isUndefined(const QVariant &value) {
    return value.typeId() == QMetaType::QString && *static_cast<const QString *>(value.constData()) == undefined();
}
} // namespace ValueText
