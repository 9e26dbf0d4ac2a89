#pragma once

#include <QString>

#include <memory>
#include <optional>

class QMimeData;
class QWidget;

// What a cell drag carries: a text that only a cell of the window that it came from takes.
namespace CellDragData {
[[nodiscard]] std::unique_ptr<QMimeData> make(const QWidget &source, const QString &text);
// Whether the data come from a cell, of whatever window.
[[nodiscard]] bool isCell(const QMimeData &data);
// Nothing for data of another kind or another window.
[[nodiscard]] std::optional<QString> textFor(const QWidget &target, const QMimeData &data);
} // namespace CellDragData
