#pragma once

#include <QString>

class Transformer;

// Numbers in the component's store of settings.
namespace Setting {
// A stored text that is no number counts as fallback: a damaged store must not stop the start.
[[nodiscard]] qint32 integer(Transformer &transformer, const QString &key, qint32 fallback);
} // namespace Setting
