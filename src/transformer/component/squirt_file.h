#pragma once

#include "tier_data.h"

#include <QByteArray>

// A squirt file: the memory image of one tier with its identity and checksum, for programming without this program.
namespace SquirtFile {
[[nodiscard]] QByteArray write(const TierData &data, const QString &applicationVersion);
} // namespace SquirtFile
