#include "field_label.h"

#include "engraved_text.h"
#include "plain_caption.h"

#include <QPainter>

FieldLabel::FieldLabel(QWidget *parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
}

// Text that is laid out with breaks needs a fraction of a pixel more than its rounded advance.
int FieldLabel::captionWidth() const { return fontMetrics().horizontalAdvance(plainCaption(text())) + 1; }

int FieldLabel::wrappedHeight(int width) const {
    return fontMetrics().boundingRect(QRect(0, 0, width, QWIDGETSIZE_MAX), textFlags(), text()).height();
}

int FieldLabel::textFlags() const { return int(alignment()) | Qt::TextWordWrap | Qt::TextShowMnemonic; }

void FieldLabel::paintEvent(QPaintEvent * /*event*/) {
    QPainter painter(this);
    drawCaption(painter, *this, contentsRect(), {text(), textFlags(), isEnabled()});
}
