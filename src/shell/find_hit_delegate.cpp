#include "find_hit_delegate.h"

#include <QApplication>
#include <QPainter>

namespace {
constexpr double kFirstShare = 0.62;
constexpr int kGap = 6;
} // namespace

void FindHitDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const {
    QStyleOptionViewItem line = option;
    initStyleOption(&line, index);
    const QString text = line.text;
    line.text.clear();
    const QStyle *style = line.widget != nullptr ? line.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &line, painter, line.widget);
    const bool selected = (line.state & QStyle::State_Selected) != 0;
    const QPalette::ColorRole role = selected ? QPalette::HighlightedText : QPalette::Text;
    const int first = int(line.rect.width() * kFirstShare);
    const auto draw = [&](const QString &part, int left, int width) {
        const QRect place(line.rect.left() + left, line.rect.top(), width - kGap, line.rect.height());
        style->drawItemText(painter, place, Qt::AlignLeft | Qt::AlignVCenter, line.palette, true,
                            line.fontMetrics.elidedText(part, Qt::ElideRight, place.width()), role);
    };
    draw(text.section(u'\t', 0, 0), kGap, first - kGap);
    draw(text.section(u'\t', 1), first, line.rect.width() - first);
}
