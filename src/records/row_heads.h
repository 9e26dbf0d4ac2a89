#pragma once

#include <QHeaderView>

class RowBlock;

// The heads of a grid's rows. A press selects the row, Shift or a drag over the heads extends the block, Ctrl adds an
// adjoining row. A press on a selected head may begin a drag of the block, so it alone is selected at the release.
class RowHeads final : public QHeaderView {
    Q_OBJECT
  public:
    // The block outlives this.
    RowHeads(const RowBlock &block, QWidget *parent);

    [[nodiscard]] QSize sizeHint() const override;

  Q_SIGNALS:
    void blockAsked(const RowBlock &block);

  protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

  private:
    const RowBlock &mBlock;
    bool mExtending = false;
    int mClicked = -1; // a selected row whose head is held down
};
