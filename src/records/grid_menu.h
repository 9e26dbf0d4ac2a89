#pragma once

#include "window_services.h"

#include <QObject>

class GridClipboard;
class GridSurface;
class QAction;
class QMenu;
class QPoint;

// The pop-up menu of a grid: cut, copy, paste, select all. Opens at the pointer by the right button, at the current
// cell by the menu key.
class GridMenu final : public QObject {
    Q_OBJECT
  public:
    // Watches the grid's cells. All outlive this.
    GridMenu(GridSurface &grid, const FieldServices &services, GridClipboard &clipboard);

    // A mouse button was pressed on the table.
    void TDBGrid1_MouseDown();
    // Enables what now applies.
    void mnuPopup_Click();
    void ShowAtCell();
    [[nodiscard]] QMenu &menu() const { return *mMenu; }

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    QAction *addCommand(const char *name, const char *text, void (GridClipboard::*command)());
    void show(const QPoint &globalPosition);

    GridSurface &mGrid;
    FieldServices mServices;
    ErrorReport &mErrors;
    GridClipboard &mClipboard;
    QMenu *mMenu; // owned by the control
    QAction *mCut;
    QAction *mCopy;
    QAction *mPaste;
};
