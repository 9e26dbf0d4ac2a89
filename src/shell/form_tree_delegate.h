#pragma once

#include <QStyledItemDelegate>

// Paints a node's state from its colour role with colours of the palette, kept legible on light and dark grounds.
class FormTreeDelegate final : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;
    // from, moved towards to until it stands out from ground by at least contrast (1 to 21, as WCAG 2.1 defines it).
    [[nodiscard]] static QColor legible(const QColor &from, const QColor &to, const QColor &ground, double contrast);

  protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;
};
