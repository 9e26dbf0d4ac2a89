#pragma once

#include <QByteArray>
#include <QIconEngine>

// Draws one SVG drawing in the present palette: the ink colour of the file becomes the colour of window text, so that
// an icon is legible on a light and on a dark desktop and follows a change at run time.
class SvgIconEngine final : public QIconEngine {
  public:
    // drawing: a whole SVG document. Its ink is the colour #202020; every other colour stays.
    explicit SvgIconEngine(QByteArray drawing);

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    [[nodiscard]] QIconEngine *clone() const override;

  private:
    QByteArray mDrawing;
};
