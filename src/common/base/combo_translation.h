#pragma once

#include <QString>

// Between the positions of a drop-down list and the values that its items store. map: the stored values joined by "|",
// in the order of the items; positions count from 0.

// The stored value at a position. A position that the map does not have, -1 too, raises error 13.
[[nodiscard]] Q_DECL_EXPORT qint32 ComboTransFromUI(const QString &map, qint32 position);
// The position of a value, compared as text. -1 for an empty value. A value that the map does not have gives the last
// position.
[[nodiscard]] Q_DECL_EXPORT qint32 ComboTransToUI(const QString &map, const QString &value);
