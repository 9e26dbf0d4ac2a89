#pragma once

#include "change.h"
#include "dictionary.h"

#include <QJsonArray>

// Steps as JSON, by the names of fields and structures, so that a later version of the program can still make them.
namespace ChangeJson {
[[nodiscard]] QJsonArray toJson(const Dictionary &dictionary, const Changes &changes);
// Raises RunTimeError (5) for what is no list of steps over this dictionary.
[[nodiscard]] Changes fromJson(const Dictionary &dictionary, const QJsonArray &json);
} // namespace ChangeJson
