#include "engraved_text.h"

#include "dimmed_colour.h"
#include "twips.h"

#include <QPainter>
#include <QWidget>

namespace {
constexpr Twips kEngravedBy{15};
}

void drawCaption(QPainter &painter, const QWidget &widget, const QRect &rect, const CaptionText &caption) {
    const QPalette &palette = widget.palette();
    const auto drawIn = [&](const QColor &colour, const QPoint &offset) {
        painter.setPen(colour);
        painter.drawText(rect.translated(offset), caption.flags, caption.text);
    };
    if (caption.enabled) {
        drawIn(palette.color(QPalette::Active, QPalette::WindowText), {});
        return;
    }
    const int offset = TwipScale::of(widget).toPixels(kEngravedBy).count;
    drawIn(palette.color(QPalette::Active, QPalette::Light), {offset, offset});
    drawIn(dimmedTextColour(palette), {});
}
