#include "record_json.h"

#include "json_text.h"
#include "run_time_error.h"
#include "value_codec.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace {
bool isPlain(QChar letter) { return letter >= u' ' && letter <= u'~' && letter != u'"' && letter != u'\\'; }

void appendWhole(QByteArray &text, qint32 number) {
    std::array<char, 12> digits{};
    const auto [end, error] = std::to_chars(digits.begin(), digits.end(), number);
    text.append(digits.data(), end - digits.data());
}

[[noreturn]] void wrong(const FieldDefinition &field) {
    throw RunTimeError(ErrorNumber::kBadArgument, QStringLiteral("RecordJson"), field.id);
}

// One of the two is given where the JSON is a number or a text, else none.
StoredValue valueOf(const FieldDefinition &field, const std::optional<double> &number,
                    const std::optional<QString> &text) {
    if (field.isTextual()) {
        if (!text)
            wrong(field);
        return *text;
    }
    if (!number)
        wrong(field);
    constexpr double kTolerance = 1e-4; // of a stored unit; what the way through a double may cost
    const double scaled = field.decimals == 0 ? *number : *number * std::pow(10.0, field.decimals);
    const double whole = std::nearbyint(scaled);
    const bool fits = std::abs(whole) <= double(std::numeric_limits<qint32>::max());
    if (!fits || std::abs(scaled - whole) > kTolerance)
        wrong(field);
    return qint32(whole);
}

// Place of the field among the structure's stored ones; mostly it is the expected one. Their number for another key.
std::size_t placeOf(const Dictionary &dictionary, const RecordStructure &structure, const JsonParts::Part &part,
                    std::size_t expected) {
    const std::vector<FieldIndex> &stored = structure.stored;
    if (expected < stored.size() && dictionary.field(stored[expected]).id == QLatin1StringView(part.key))
        return expected;
    const FieldDefinition *field = dictionary.find(part.name());
    return field == nullptr ? stored.size() : std::size_t(std::ranges::find(stored, field->index) - stored.begin());
}
} // namespace

namespace RecordJson {
QByteArray quoted(const QString &text) {
    if (std::ranges::all_of(text, isPlain))
        return '"' + text.toLatin1() + '"';
    const QByteArray array = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
    return array.sliced(1, array.size() - 2);
}

void appendValue(QByteArray &text, const FieldDefinition &field, const TierData &data, RecordAddress record) {
    if (field.isTextual())
        text += quoted(data.text(field, record));
    else if (field.decimals > 0)
        text += ValueCodec::shortNumber(data.number(field, record), field.decimals).toLatin1();
    else
        appendWhole(text, data.number(field, record));
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

ParsedRow parse(const Dictionary &dictionary, const RecordStructure &structure, QByteArrayView json,
                const RecordRow &fallback) {
    ParsedRow result{.row = fallback, .unknown = {}};
    std::size_t expected = 0;
    JsonParts parts(json);
    while (const std::optional<JsonParts::Part> part = parts.next()) {
        const std::size_t place = placeOf(dictionary, structure, *part, expected);
        if (place == structure.stored.size()) {
            result.unknown.insert(part->name(), JsonText::tree(part->value));
            continue;
        }
        const FieldDefinition &field = dictionary.field(structure.stored[place]);
        result.row[place] = valueOf(field, JsonText::number(part->value), JsonText::string(part->value));
        expected = place + 1;
    }
    return result;
}

RecordRow row(const Dictionary &dictionary, const RecordStructure &structure, const QJsonObject &json,
              const RecordRow &fallback) {
    RecordRow result = fallback;
    for (std::size_t i = 0; i < structure.stored.size(); ++i) {
        const FieldDefinition &field = dictionary.field(structure.stored[i]);
        const auto found = json.constFind(field.id);
        if (found == json.constEnd())
            continue;
        const QJsonValue value = *found;
        result[i] = valueOf(field, value.isDouble() ? std::optional(value.toDouble()) : std::nullopt,
                            value.isString() ? std::optional(value.toString()) : std::nullopt);
    }
    return result;
}
} // namespace RecordJson
