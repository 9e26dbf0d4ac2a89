#include "cell_drag_data.h"

#include <QCoreApplication>
#include <QDataStream>
#include <QIODevice>
#include <QMimeData>
#include <QWidget>

namespace {
const auto kMimeType = QStringLiteral("application/x-kx4600-grid-cell");

quint64 windowNumber(const QWidget &widget) { return quint64(reinterpret_cast<quintptr>(widget.window())); }
} // namespace

std::unique_ptr<QMimeData> CellDragData::make(const QWidget &source, const QString &text) {
    QByteArray bytes;
    QDataStream(&bytes, QIODevice::WriteOnly) << QCoreApplication::applicationPid() << windowNumber(source) << text;
    auto data = std::make_unique<QMimeData>();
    data->setData(kMimeType, bytes);
    return data;
}

bool CellDragData::isCell(const QMimeData &data) { return data.hasFormat(kMimeType); }

std::optional<QString> CellDragData::textFor(const QWidget &target, const QMimeData &data) {
    qint64 process = 0;
    quint64 window = 0;
    QString text;
    QDataStream stream(data.data(kMimeType));
    stream >> process >> window >> text;
    if (stream.status() != QDataStream::Ok || process != QCoreApplication::applicationPid() ||
        window != windowNumber(target))
        return std::nullopt;
    return text;
}
