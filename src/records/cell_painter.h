#pragma once

#include <QStyledItemDelegate>

class TDBGrid;

// Paints the cells: a frame round the current one, and a button in it where a list belongs to it.
class CellPainter final : public QStyledItemDelegate {
    Q_OBJECT
  public:
    // Owned by the table.
    explicit CellPainter(TDBGrid &table);

    // Where the button stands in a cell.
    [[nodiscard]] static QRect buttonRect(const QRect &cell);
    // The room for the text in the cell; the button takes some of it.
    [[nodiscard]] static QRect textRect(const QRect &cell, bool withButton);

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;

  private:
    const TDBGrid &mTable;
};
