#include "caption_check_box.h"

#include "dimmed_colour.h"
#include "engraved_text.h"
#include "plain_caption.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionButton>
#include <QStyleOptionFocusRect>

namespace {
constexpr int kGap = 4;         // pixels between caption and box
constexpr int kCaptionLeft = 2; // pixels; where the captions of other fields begin
constexpr double kOutlineStrength = 0.4;

// The style's own outline of a box vanishes there.
bool isDark(const QPalette &palette) {
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}
} // namespace

CaptionCheckBox::CaptionCheckBox(QWidget *parent) : QCheckBox(parent) {}

void CaptionCheckBox::setCaptionAlignment(Qt::Alignment alignment) {
    mCaptionAlignment = alignment;
    update();
}

int CaptionCheckBox::captionWidth() const { return fontMetrics().horizontalAdvance(plainCaption(text())); }

int CaptionCheckBox::wrappedHeight(int width) const {
    const QRect room(0, 0, width - boxSpace(), QWIDGETSIZE_MAX);
    return fontMetrics().boundingRect(room, Qt::TextWordWrap | Qt::TextShowMnemonic, text()).height();
}

int CaptionCheckBox::boxSpace() const { return style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, this) + kGap; }

QRect CaptionCheckBox::boxRect() const {
    const QSize size(style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, this),
                     style()->pixelMetric(QStyle::PM_IndicatorHeight, nullptr, this));
    return QStyle::alignedRect(Qt::LeftToRight, Qt::AlignRight | Qt::AlignVCenter, size, rect());
}

bool CaptionCheckBox::hitButton(const QPoint &pos) const { return rect().contains(pos); }

void CaptionCheckBox::paintEvent(QPaintEvent * /*event*/) {
    QPainter painter(this);
    QStyleOptionButton box;
    initStyleOption(&box);
    box.rect = boxRect();
    style()->drawPrimitive(QStyle::PE_IndicatorCheckBox, &box, &painter, this);
    if (isDark(palette())) {
        painter.setPen(mixedTextColour(palette(), kOutlineStrength));
        painter.drawRect(box.rect.adjusted(0, 0, -1, -1));
    }

    const int flags = int(mCaptionAlignment) | Qt::AlignVCenter | Qt::TextWordWrap | Qt::TextShowMnemonic;
    const bool captionLeft = (mCaptionAlignment & Qt::AlignLeft) != 0;
    const QRect room = rect().adjusted(captionLeft ? kCaptionLeft : 0, 0, -boxSpace(), 0);
    drawCaption(painter, *this, room, {text(), flags, isEnabled()});
    if (!hasFocus())
        return;
    QStyleOptionFocusRect focus;
    focus.initFrom(this);
    const bool captionShown = !text().trimmed().isEmpty();
    focus.rect = captionShown ? fontMetrics().boundingRect(room, flags, text()).adjusted(-1, 0, 1, 0) & rect()
                              : boxRect().adjusted(-2, -2, 0, 2);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
}
