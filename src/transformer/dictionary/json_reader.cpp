#include "json_reader.h"

#include "run_time_error.h"

#include <algorithm>
#include <cmath>
#include <limits>

JsonReader::JsonReader(QString file, QString owner, QJsonObject object)
    : mFile(std::move(file)), mOwner(std::move(owner)), mObject(std::move(object)) {}

void JsonReader::allow(std::span<const QLatin1StringView> known) const {
    for (auto it = mObject.begin(); it != mObject.end(); ++it) {
        const QString key = it.key();
        if (std::ranges::find(known, key) == known.end())
            throw RunTimeError(ErrorNumber::kBadArgument, QStringLiteral("DictionaryLoader"),
                               QStringLiteral("%1: %2: %3: unknown key").arg(mFile, mOwner, key));
    }
}

void JsonReader::refuse(QLatin1StringView key, const QString &what) const {
    throw RunTimeError(ErrorNumber::kBadArgument, QStringLiteral("DictionaryLoader"),
                       QStringLiteral("%1: %2: %3: %4").arg(mFile, mOwner, key, what));
}

QJsonValue JsonReader::required(QLatin1StringView key) const {
    QJsonValue found = mObject.value(key);
    if (found.isUndefined())
        refuse(key, QStringLiteral("is missing"));
    return found;
}

QString JsonReader::text(QLatin1StringView key) const {
    const QJsonValue found = required(key);
    if (!found.isString())
        refuse(key, QStringLiteral("must be a text"));
    return found.toString();
}

qint32 JsonReader::integer(QLatin1StringView key) const { return scaled(key, required(key), 0); }

QJsonArray JsonReader::array(QLatin1StringView key) const {
    const QJsonValue found = required(key);
    if (!found.isArray())
        refuse(key, QStringLiteral("must be an array"));
    return found.toArray();
}

QString JsonReader::textOr(QLatin1StringView key, const QString &fallback) const {
    return has(key) ? text(key) : fallback;
}

qint32 JsonReader::integerOr(QLatin1StringView key, qint32 fallback) const {
    return has(key) ? integer(key) : fallback;
}

bool JsonReader::flag(QLatin1StringView key) const {
    const QJsonValue found = mObject.value(key);
    if (found.isUndefined())
        return false;
    if (!found.isBool())
        refuse(key, QStringLiteral("must be true or false"));
    return found.toBool();
}

QJsonArray JsonReader::arrayOrEmpty(QLatin1StringView key) const { return has(key) ? array(key) : QJsonArray(); }

QStringList JsonReader::texts(QLatin1StringView key) const {
    QStringList result;
    if (!has(key))
        return result;
    if (value(key).isString())
        return {text(key)};
    for (const auto &entry : array(key)) {
        if (!entry.isString())
            refuse(key, QStringLiteral("must hold texts"));
        result.append(entry.toString());
    }
    return result;
}

JsonReader JsonReader::object(QLatin1StringView key) const { return nested(key, required(key)); }

JsonReader JsonReader::nested(QLatin1StringView key, const QJsonValue &value) const {
    if (!value.isObject())
        refuse(key, QStringLiteral("must be an object"));
    return {mFile, mOwner, value.toObject()};
}

qint32 JsonReader::scaled(QLatin1StringView key, const QJsonValue &value, qint32 decimals) const {
    if (!value.isDouble())
        refuse(key, QStringLiteral("must be a number"));
    const double exact = value.toDouble() * std::pow(10.0, decimals);
    const double whole = std::round(exact);
    if (std::abs(exact - whole) > 1e-4)
        refuse(key, QStringLiteral("has more decimals than the field"));
    if (std::abs(whole) > double(std::numeric_limits<qint32>::max()))
        refuse(key, QStringLiteral("is too large"));
    return qint32(whole);
}
