#pragma once

#include "data_document.h"

#include <QJsonObject>
#include <QJsonValue>

// One record's values as JSON: {"UIID": value, ...}. Numbers stand as they are read by people (156.5 MHz is 156.5),
// items and references by their stored value, texts as text.
namespace RecordJson {
// A text as a JSON string, with its quotation marks.
[[nodiscard]] QByteArray quoted(const QString &text);
void appendValue(QByteArray &text, const FieldDefinition &field, const StoredValue &value);
// Nothing if the JSON value is of another kind or not a multiple of the stored unit.
[[nodiscard]] std::optional<StoredValue> value(const FieldDefinition &field, const QJsonValue &json);

[[nodiscard]] QJsonObject ofRow(const Dictionary &dictionary, const RecordStructure &structure, const RecordRow &row);
struct ParsedRow {
    RecordRow row;
    qsizetype known = 0; // entries of json that are stored fields of the structure
};
// Fields that json lacks keep their value of fallback. Raises RunTimeError (5) naming the field for a value that does
// not fit its kind.
[[nodiscard]] ParsedRow parse(const Dictionary &dictionary, const RecordStructure &structure, const QJsonObject &json,
                              const RecordRow &fallback);
// The row of it alone.
[[nodiscard]] RecordRow row(const Dictionary &dictionary, const RecordStructure &structure, const QJsonObject &json,
                            const RecordRow &fallback);
// What json holds beyond the structure's stored fields.
[[nodiscard]] QJsonObject unknownOf(const Dictionary &dictionary, const RecordStructure &structure,
                                    const QJsonObject &json);
} // namespace RecordJson
