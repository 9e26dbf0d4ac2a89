#include "frame_border.h"

#include "dimmed_colour.h"
#include "engraved_text.h"
#include "plain_caption.h"

#include <QPainter>

namespace {
constexpr int kCaptionLeft = 8;  // pixels, from the border's left end
constexpr int kCaptionSpace = 4; // pixels, free at both ends of the caption
constexpr double kRadius = 3.0;
constexpr double kLineStrength = 0.30; // soft on a light and on a dark desktop
} // namespace

FrameBorder::FrameBorder(QWidget *parent) : QWidget(parent) {}

void FrameBorder::setCaption(const QString &caption) {
    mCaption = caption;
    update();
}

void FrameBorder::paintEvent(QPaintEvent * /*event*/) {
    QPainter painter(this);
    QFont bold = font();
    bold.setBold(true);
    painter.setFont(bold);
    const QFontMetrics metrics = painter.fontMetrics();
    const QRect caption(kCaptionLeft + kCaptionSpace, 0, metrics.horizontalAdvance(plainCaption(mCaption)),
                        metrics.height());
    const bool captioned = !mCaption.trimmed().isEmpty();

    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(mixedTextColour(palette(), kLineStrength));
    if (captioned) {
        const QRect gap = caption.adjusted(-kCaptionSpace, 0, kCaptionSpace, 0);
        painter.setClipRegion(QRegion(rect()) - gap);
    }
    const int captionMiddle = captioned ? metrics.height() / 2 : 0;
    const double top = captionMiddle + 0.5;
    painter.drawRoundedRect(QRectF(0.5, top, width() - 1.0, height() - top - 0.5), kRadius, kRadius);
    painter.restore();
    if (captioned)
        drawCaption(painter, *this, caption, {mCaption, Qt::AlignLeft | Qt::TextShowMnemonic, isEnabled()});
}
