#pragma once

#include "grid_surface.h"
#include "row_block.h"
#include "table_keys.h"
#include "table_mouse.h"

#include <QTableView>

class CellEditor;
class ColumnHeads;
class ErrorReport;
class GridCells;
class GridModel;
class TableEvents;
class TDBDropDown;

// The table of a grid: cursor, cell editor, drop-down list and the selection of whole rows, over the model of the
// grid's array. The cursor moves only when the cell that it leaves agrees, whoever moves it; while a cell is being
// asked, further moves by code are not asked again.
class TDBGrid final : public QTableView, public GridTable {
    Q_OBJECT
  public:
    // All outlive this.
    TDBGrid(GridModel &model, GridCells &cells, TableEvents &events, ErrorReport &errors, QWidget *parent);

    [[nodiscard]] CellEditor &editor() const { return *mEditor; }
    [[nodiscard]] TDBDropDown &dropDown() const { return *mDropDown; }
    [[nodiscard]] ColumnHeads &columnHeads() const;
    // Columns of these widths in pixels; 0 for the last: what is left. The cursor keeps its row and column.
    void setColumnWidths(const std::vector<int> &widths);
    // ReBind that keeps the selection as far as its rows still exist.
    void reBindKeepingSelection();
    // Ends the edit; what was not written is lost.
    void finishEdit();
    void openDropDown();
    void ToggleCell();
    // Asks the present cell without leaving it. False: refused.
    [[nodiscard]] bool commitCell();
    [[nodiscard]] GridCell currentCell() const { return {mRow, mCol}; }
    [[nodiscard]] bool isEditableNow() const;
    // A list belongs to the current cell, and it can be edited.
    [[nodiscard]] bool hasListNow() const;
    [[nodiscard]] bool isCheckNow() const;
    // As part of a whole row.
    [[nodiscard]] bool isSelected(qint32 row) const { return mBlock.contains(row); }

    [[nodiscard]] std::optional<qint32> Bookmark() const override;
    void SetBookmark(qint32 row) override;
    [[nodiscard]] qint32 Col() const override { return mCol; }
    void SetCol(qint32 column) override;
    void SetRow(qint32 place) override;
    bool MoveTo(const GridCell &cell) override;
    [[nodiscard]] QRect CellRect() const override;
    [[nodiscard]] qint32 VisibleRows() const override;
    [[nodiscard]] qint32 ApproxCount() const override;
    void MoveFirst() override { SetBookmark(0); }
    void MoveLast() override { SetBookmark(ApproxCount() - 1); }
    [[nodiscard]] std::vector<qint32> SelBookmarks() const override { return mBlock.rows(); }
    void AddSelBookmark(qint32 row) override;
    void RemoveSelBookmarks() override;
    void SetSelStartCol(qint32 /*column*/) override {} // a selected row is selected in all its columns
    void SetSelEndCol(qint32 /*column*/) override {}
    [[nodiscard]] bool EditActive() const override;
    void StartEdit() override;
    [[nodiscard]] QString Text() const override;
    void SetText(const QString &text) override;
    [[nodiscard]] QString SelText() const override;
    void SetSelText(const QString &text) override;
    void SetSelStart(qint32 position) override;
    void SetSelLength(qint32 length) override;
    void Update() override;
    void ReBind() override;
    void Refresh() override;
    void SetFocus() override;
    [[nodiscard]] bool Visible() const override { return isVisible(); }
    [[nodiscard]] std::optional<qint32> RowContaining(int y) const override;
    [[nodiscard]] std::optional<qint32> ColContaining(int x) const override;
    [[nodiscard]] QWidget &CellsSurface() override { return *viewport(); }
    [[nodiscard]] QWidget &HeadsSurface() override;

    void selectAll() override;

  protected:
    void keyPressEvent(QKeyEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    bool event(QEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void updateGeometries() override;
    void scrollContentsBy(int dx, int dy) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;

  private:
    void setUpHeads();
    void clickHead(int column);
    void tellEdited();
    void takeChoice(const QString &text);

    void placeCursor(GridCell cell);
    void showCursor();
    void placeEditor();
    void selectBlock(const RowBlock &block);
    void showBlock();
    void bind(const RowBlock &kept);
    void listClosed(int tab);
    [[nodiscard]] bool hasCurrent() const { return Bookmark() && mCol >= 0; }

    GridModel &mModel;
    GridCells &mCells;
    TableEvents &mEvents;
    ErrorReport &mErrors;
    TableKeys mKeys;
    TableMouse mMouse;
    CellEditor *mEditor;    // owned by this widget
    TDBDropDown *mDropDown; // owned by this widget
    RowBlock mBlock;
    qint32 mRow = -1;
    qint32 mCol = -1;
    bool mAsking = false;  // the cell that is to be left is being asked
    bool mPlacing = false; // the cursor moves by this class
    bool mShowsLater = false;
};
