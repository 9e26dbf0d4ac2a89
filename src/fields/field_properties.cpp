#include "field_properties.h"

#include "run_time_error.h"
#include "value_text.h"

#include <cmath>
#include <limits>

namespace {
bool isNumberType(const QVariant &value) {
    switch (value.typeId()) {
    case QMetaType::Int:
    case QMetaType::LongLong:
    case QMetaType::Double:
        return true;
    default:
        return false;
    }
}
} // namespace

QString PropertyReader::text(const QString &key, const QString &defaultValue) {
    const std::optional<QVariant> value = take(key);
    if (value && value->typeId() != QMetaType::QString)
        raise(ErrorNumber::kConversion, key, QStringLiteral("is no text"));
    return value ? value->toString() : defaultValue;
}

bool PropertyReader::flag(const QString &key, bool defaultValue) {
    const std::optional<QVariant> value = take(key);
    if (value && value->typeId() != QMetaType::Bool)
        raise(ErrorNumber::kConversion, key, QStringLiteral("is neither true nor false"));
    return value ? value->toBool() : defaultValue;
}

double PropertyReader::real(const QString &key, double defaultValue) {
    const std::optional<QVariant> value = take(key);
    if (value && !isNumberType(*value))
        raise(ErrorNumber::kConversion, key, QStringLiteral("is no number"));
    return value ? value->toDouble() : defaultValue;
}

qint32 PropertyReader::integer(const QString &key, qint32 defaultValue) {
    const std::optional<QVariant> value = take(key);
    if (!value)
        return defaultValue;
    const std::optional<double> number = ValueText::number(*value);
    const bool fits = number && std::abs(*number) <= std::numeric_limits<qint32>::max();
    if (value->typeId() == QMetaType::Bool || !fits || *number != std::floor(*number))
        raise(ErrorNumber::kConversion, key, QStringLiteral("is no whole number"));
    return qint32(*number);
}

void PropertyReader::refuseUnknown() const {
    if (!mLeft.isEmpty())
        raise(ErrorNumber::kBadArgument, mLeft.firstKey(), QStringLiteral("is no property of this control"));
}

std::optional<QVariant> PropertyReader::take(const QString &key) {
    if (!mLeft.contains(key))
        return std::nullopt;
    return mLeft.take(key);
}

void PropertyReader::raise(qint32 number, const QString &key, const QString &complaint) const {
    throw RunTimeError(number, QStringLiteral("PropertyReader"),
                       QStringLiteral("%1: %2: \"%3\" %4").arg(mProperties.file, mProperties.control, key, complaint));
}
