#include "svg_icon_engine.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QSvgRenderer>

#include <utility>

namespace {
constexpr char kInk[] = "#202020";
constexpr double kDisabledOpacity = 0.4;

QColor inkFor(QIcon::Mode mode) {
    const QPalette palette = QGuiApplication::palette();
    return mode == QIcon::Selected ? palette.color(QPalette::HighlightedText) : palette.color(QPalette::WindowText);
}
} // namespace

SvgIconEngine::SvgIconEngine(QByteArray drawing) : mDrawing(std::move(drawing)) {}

void SvgIconEngine::paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State /*state*/) {
    QByteArray drawing = mDrawing;
    drawing.replace(kInk, inkFor(mode).name().toLatin1());
    QSvgRenderer renderer(drawing);
    renderer.setAspectRatioMode(Qt::KeepAspectRatio);
    painter->save();
    if (mode == QIcon::Disabled)
        painter->setOpacity(painter->opacity() * kDisabledOpacity);
    renderer.render(painter, QRectF(rect));
    painter->restore();
}

QPixmap SvgIconEngine::pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) {
    QPixmap result(size);
    result.fill(Qt::transparent);
    QPainter painter(&result);
    paint(&painter, QRect(QPoint(), size), mode, state);
    return result;
}

QIconEngine *SvgIconEngine::clone() const { return new SvgIconEngine(*this); }
