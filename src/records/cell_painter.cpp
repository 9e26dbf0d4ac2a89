#include "cell_painter.h"

#include "tdb_grid.h"

#include <QPainter>
#include <QStyleOption>

namespace {
constexpr int kButtonWidth = 16; // pixels
constexpr int kMargin = 2;
} // namespace

CellPainter::CellPainter(TDBGrid &table) : QStyledItemDelegate(&table), mTable(table) {}

QRect CellPainter::buttonRect(const QRect &cell) {
    return {cell.right() - kButtonWidth + 1, cell.top(), kButtonWidth, cell.height()};
}

QRect CellPainter::textRect(const QRect &cell, bool withButton) {
    return cell.adjusted(kMargin, 0, -kMargin - (withButton ? kButtonWidth : 0), 0);
}

void CellPainter::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const {
    const bool current = mTable.currentCell() == GridCell{index.row(), index.column()};
    const bool withButton = current && mTable.hasListNow();
    QStyleOptionViewItem cell = option;
    cell.state &= ~QStyle::State_HasFocus;
    if (withButton) {
        // The text ends where the button begins.
        painter->fillRect(
            option.rect,
            option.palette.brush((option.state & QStyle::State_Selected) != 0 ? QPalette::Highlight : QPalette::Base));
        cell.rect.setRight(buttonRect(option.rect).left() - 1);
    }
    QStyledItemDelegate::paint(painter, cell, index);
    if (!current)
        return;
    if (withButton) {
        QStyleOption arrow;
        arrow.palette = option.palette;
        arrow.state = QStyle::State_Enabled;
        arrow.rect = buttonRect(option.rect).adjusted(3, 3, -3, -3);
        mTable.style()->drawPrimitive(QStyle::PE_IndicatorArrowDown, &arrow, painter, &mTable);
    }
    const bool selected = (option.state & QStyle::State_Selected) != 0;
    painter->setPen(option.palette.color(QPalette::Active, selected ? QPalette::HighlightedText : QPalette::Highlight));
    painter->drawRect(option.rect.adjusted(0, 0, -1, -1));
}
