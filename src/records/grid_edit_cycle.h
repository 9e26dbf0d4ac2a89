#pragma once

#include "grid_surface.h"
#include "table_events.h"
#include "window_services.h"

struct GridOperations;
class GridLists;
class GridValues;
class TDBGrid;

// How a cell is entered, edited and left. Entering fetches the cell's list, rules and help; leaving is the commit
// point, where the component judges the value; a refused cell keeps the cursor. A choice in a list is written when the
// list closes.
class GridEditCycle final : public TableEvents {
  public:
    struct Parts {
        GridSurface &grid;
        GridLists &lists;
        GridValues &values;
        TDBGrid &table;
        GridOperations &operations;
    };
    GridEditCycle(const Parts &parts, const FieldServices &services);

    // The commit point. Nothing is done while it runs already.
    void Validate(bool &cancel);
    // The cursor has come to another cell.
    void TDBGrid1_RowColChange();
    void RebindIDTrackerDropdown();
    // The current cell shows what the component holds.
    void noteStored();

    void BeforeColUpdate(qint32 column, bool &Cancel) override;
    void AfterColUpdate(qint32 column) override;
    void BeforeRowColChange(bool &Cancel) override;
    void RowColChange(qint32 lastRow, qint32 lastColumn) override;
    void BeforeEdit() override;
    void Change() override;
    void HeadClick(qint32 column) override;
    void CornerClick() override;
    bool KeyDown(QKeyEvent &key) override;
    void DropDownOpen() override;
    void DropDownClose() override;
    void Toggle() override;
    void GotFocus(Qt::FocusReason reason) override;

  private:
    // The cell in which the list was opened, as it was then.
    struct OpenedList {
        GridCell cell;
        qint32 record;
        QString text;
    };

    void commit(bool &cancel);
    void holdCell(qint32 row);
    void formatText();
    [[nodiscard]] bool isLeftAlone();
    void raiseChange(qint32 record);
    void prepareCell();
    void bindList();
    void bindRules();
    void keepSource();
    void reportChoice(const OpenedList &opened);

    Parts mParts;
    FieldServices mServices;
    ErrorReport &mErrors;
    std::optional<OpenedList> mOpened;
    std::optional<GridCell> mPrepared; // the cell whose list and rules are bound
    QString mEntered;                  // the cell's text when it held what the component holds
    bool mValidating = false;
};
