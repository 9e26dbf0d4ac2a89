#pragma once

#include <QStyledItemDelegate>

// Draws a line of two parts with a tab between them in two columns.
class FindHitDelegate final : public QStyledItemDelegate {
    Q_OBJECT
  public:
    using QStyledItemDelegate::QStyledItemDelegate;
    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};
