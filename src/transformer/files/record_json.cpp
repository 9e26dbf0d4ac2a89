#include "record_json.h"

#include "run_time_error.h"
#include "value_codec.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <cmath>

namespace {
bool isPlain(QChar letter) { return letter >= u' ' && letter <= u'~' && letter != u'"' && letter != u'\\'; }
} // namespace

namespace RecordJson {
QByteArray quoted(const QString &text) {
    if (std::ranges::all_of(text, isPlain))
        return '"' + text.toLatin1() + '"';
    const QByteArray array = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
    return array.sliced(1, array.size() - 2);
}

void appendValue(QByteArray &text, const FieldDefinition &field, const StoredValue &value) {
    if (field.isTextual())
        text += quoted(value.text());
    else if (field.decimals > 0)
        text += ValueCodec::shortNumber(value.number(), field.decimals).toLatin1();
    else
        text += QByteArray::number(value.number());
}

std::optional<StoredValue> value(const FieldDefinition &field, const QJsonValue &json) {
    if (field.isTextual())
        return json.isString() ? std::optional<StoredValue>(json.toString()) : std::nullopt;
    if (!json.isDouble())
        return std::nullopt;
    constexpr double kTolerance = 1e-4; // of a stored unit; what the way through a double may cost
    const double scaled = json.toDouble() * std::pow(10.0, field.decimals);
    const double whole = std::nearbyint(scaled);
    const bool fits = std::abs(whole) <= double(std::numeric_limits<qint32>::max());
    if (!fits || std::abs(scaled - whole) > kTolerance)
        return std::nullopt;
    return StoredValue(qint32(whole));
}

QJsonObject ofRow(const Dictionary &dictionary, const RecordStructure &structure, const RecordRow &row) {
    QJsonObject json;
    for (std::size_t i = 0; i < row.size(); ++i) {
        const FieldDefinition &field = dictionary.field(structure.stored[i]);
        if (field.isTextual())
            json.insert(field.id, row[i].text());
        else
            json.insert(field.id, double(row[i].number()) / std::pow(10.0, field.decimals));
    }
    return json;
}

RecordRow row(const Dictionary &dictionary, const RecordStructure &structure, const QJsonObject &json,
              const RecordRow &fallback) {
    return parse(dictionary, structure, json, fallback).row;
}

ParsedRow parse(const Dictionary &dictionary, const RecordStructure &structure, const QJsonObject &json,
                const RecordRow &fallback) {
    ParsedRow result{.row = fallback};
    for (std::size_t i = 0; i < structure.stored.size(); ++i) {
        const FieldDefinition &field = dictionary.field(structure.stored[i]);
        const auto found = json.constFind(field.id);
        if (found == json.constEnd())
            continue;
        const std::optional<StoredValue> parsed = value(field, *found);
        if (!parsed)
            throw RunTimeError(ErrorNumber::kBadArgument, QStringLiteral("RecordJson"), field.id);
        result.row[i] = *parsed;
        ++result.known;
    }
    return result;
}

QJsonObject unknownOf(const Dictionary &dictionary, const RecordStructure &structure, const QJsonObject &json) {
    QJsonObject unknown;
    for (auto entry = json.constBegin(); entry != json.constEnd(); ++entry) {
        const FieldDefinition *field = dictionary.find(entry.key());
        if (field == nullptr || field->structure != structure.index || !field->isStored())
            unknown.insert(entry.key(), entry.value());
    }
    return unknown;
}
} // namespace RecordJson
