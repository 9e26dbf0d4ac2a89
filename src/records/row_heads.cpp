#include "row_heads.h"

#include "row_block.h"

#include <QMouseEvent>

#include <utility>

RowHeads::RowHeads(const RowBlock &block, QWidget *parent) : QHeaderView(Qt::Vertical, parent), mBlock(block) {
    setSectionResizeMode(QHeaderView::Fixed);
    setHighlightSections(true);
    setDefaultAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

// The last number is the widest; to measure two hundred of them at each refill would be the greatest part of it.
QSize RowHeads::sizeHint() const {
    return count() == 0 ? QHeaderView::sizeHint() : sectionSizeFromContents(count() - 1);
}

void RowHeads::mousePressEvent(QMouseEvent *event) {
    const int row = logicalIndexAt(event->position().toPoint());
    mExtending = false;
    mClicked = -1;
    if (event->button() != Qt::LeftButton || row < 0)
        return;
    if ((event->modifiers() & Qt::ShiftModifier) != 0)
        Q_EMIT blockAsked(mBlock.extendedTo(row));
    else if ((event->modifiers() & Qt::ControlModifier) != 0)
        Q_EMIT blockAsked(mBlock.with(row));
    else if (mBlock.contains(row))
        mClicked = row;
    else
        Q_EMIT blockAsked(RowBlock::only(row));
    mExtending = mClicked < 0 && mBlock.contains(row);
}

void RowHeads::mouseMoveEvent(QMouseEvent *event) {
    const int row = logicalIndexAt(event->position().toPoint());
    if (mExtending && row >= 0 && (event->buttons() & Qt::LeftButton) != 0)
        Q_EMIT blockAsked(mBlock.extendedTo(row));
}

void RowHeads::mouseReleaseEvent(QMouseEvent * /*event*/) {
    mExtending = false;
    if (const int row = std::exchange(mClicked, -1); row >= 0)
        Q_EMIT blockAsked(RowBlock::only(row));
}
