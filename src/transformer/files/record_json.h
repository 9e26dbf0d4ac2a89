#pragma once

#include "data_document.h"

#include <QJsonObject>

// One record's values as JSON: {"UIID": value, ...}. Numbers stand as they are read by people (156.5 MHz is 156.5),
// items and references by their stored value, texts as text.
namespace RecordJson {
// A text as a JSON string, with its quotation marks.
[[nodiscard]] QByteArray quoted(const QString &text);
// The value of a stored field of a record that exists.
void appendValue(QByteArray &text, const FieldDefinition &field, const TierData &data, RecordAddress record);

[[nodiscard]] QJsonObject ofRow(const Dictionary &dictionary, const RecordStructure &structure, const RecordRow &row);
struct ParsedRow {
    RecordRow row;
    QJsonObject unknown; // what the JSON holds beyond the structure's stored fields
};
// json: an object of a sound text. Fields that it lacks keep their value of fallback. Raises RunTimeError (5) naming
// the field for a value of another kind, and for one that is no multiple of the stored unit.
[[nodiscard]] ParsedRow parse(const Dictionary &dictionary, const RecordStructure &structure, QByteArrayView json,
                              const RecordRow &fallback);
// As parse, from a tree; what is unknown is passed over.
[[nodiscard]] RecordRow row(const Dictionary &dictionary, const RecordStructure &structure, const QJsonObject &json,
                            const RecordRow &fallback);
} // namespace RecordJson
