#pragma once

#include <QtGlobal>

// Records count from 1, a grid's rows from 0.
[[nodiscard]] constexpr qint32 rowOfRecord(qint32 record) { return record - 1; }
[[nodiscard]] constexpr qint32 recordOfRow(qint32 row) { return row + 1; }
