#pragma once

#include <QHeaderView>

#include <vector>

// The heads of a grid's columns. A click is heard as sectionClicked and selects nothing; a caption that is too wide for
// its column breaks into two lines.
class ColumnHeads final : public QHeaderView {
    Q_OBJECT
  public:
    explicit ColumnHeads(QWidget *parent);

    // In pixels; 0 for the last: what is left.
    void setWidths(const std::vector<int> &widths);
    // Widens a column to at least that many pixels.
    void widen(int column, int width);

  private:
    void fitHeight();
};
