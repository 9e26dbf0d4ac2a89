#pragma once

#include "tier_data.h"

#include <QByteArray>

// A squirt file: the memory image of one tier with its identity and checksum, for programming without opening it.
namespace SquirtFile {
[[nodiscard]] QByteArray write(const TierData &data, const QString &applicationVersion);
// The values of a whole and valid squirt file. Raises FileProblem with path and reason for any other content.
[[nodiscard]] TierData read(const Dictionary &dictionary, const QString &path, const QByteArray &text);
} // namespace SquirtFile
