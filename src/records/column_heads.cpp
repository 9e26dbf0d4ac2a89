#include "column_heads.h"

#include <algorithm>

ColumnHeads::ColumnHeads(QWidget *parent) : QHeaderView(Qt::Horizontal, parent) {
    setHighlightSections(false);
    setSectionsClickable(true);
    setDefaultAlignment(Qt::Alignment::fromInt(int(Qt::AlignLeft) | int(Qt::AlignVCenter) | int(Qt::TextWordWrap)));
}

void ColumnHeads::setWidths(const std::vector<int> &widths) {
    setStretchLastSection(false);
    for (std::size_t column = 0; column < widths.size(); ++column)
        resizeSection(int(column), std::max(widths[column], minimumSectionSize()));
    setStretchLastSection(!widths.empty() && widths.back() == 0);
    fitHeight();
}

void ColumnHeads::widen(int column, int width) {
    if (column < count() && sectionSize(column) < width)
        resizeSection(column, width);
    fitHeight();
}

void ColumnHeads::fitHeight() {
    constexpr int kMargin = 4;
    const int line = fontMetrics().height();
    int height = line;
    for (int column = 0; column < count(); ++column) {
        const QRect room(0, 0, sectionSize(column) - 2 * kMargin, 2 * line);
        const QString caption = model()->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
        height = std::max(height, fontMetrics().boundingRect(room, Qt::TextWordWrap, caption).height());
    }
    setFixedHeight(std::min(height, 2 * line) + kMargin);
}
