#pragma once

#include <QString>

#include <vector>

class GridSurface;

// Text of the clipboard and of record drags: a line a record, cells parted by tabs, lines ended by CR LF.
namespace RecordText {
// A lone LF, as many programs write it, becomes CR LF.
[[nodiscard]] QString withCrLf(const QString &text);
// Several values: the text has a line end or a tab. Expects CR LF.
[[nodiscard]] bool isRecords(const QString &text);
// Cells without heads, in lines narrower than the grid: the component fills them in from the current column on.
[[nodiscard]] bool isBlock(const GridSurface &grid, const QString &text);
// A first line of all captions, then the rows as they are shown.
[[nodiscard]] QString of(const GridSurface &grid, const std::vector<qint32> &rows);
} // namespace RecordText
