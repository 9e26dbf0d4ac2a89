#pragma once

#include "field_event.h"
#include "host_control.h"
#include "xarray_db.h"

#include <QRect>
#include <QString>

#include <optional>
#include <vector>

class Ifield;
class Igrid;
class QWidget;
class Transformer;

// How the record commands, the clipboard, the two drags and the keys see the grid. The front and its table fill these
// interfaces; nothing here knows a widget's inside. Rows and columns count from 0, a row is its bookmark.

enum class ColumnType { kText, kCombo, kIdTracker, kCheckbox, kDerived };

// One column on show.
struct GridColumnFacts {
    QString uiid;
    QString caption; // translated, trimmed
    ColumnType type = ColumnType::kText;
    bool locked = false;      // the design's flag
    bool enabled = true;      // shown in the enabled styles
    bool mayTakeFocus = true; // the cursor can be put into it
};

// The design properties that the record operations read.
struct GridDesign {
    QString ID = QStringLiteral("Undefined");
    bool ButtonAdd = true;
    bool ButtonInsert = true;
    bool ButtonRepeat = true;
    bool ButtonDelete = true;
    bool Dynamic = false;
    bool ReadOnly = false;
    bool RequiresSortBeforeAdd = false;
    bool Sortable = true;
};

struct GridCell {
    qint32 row = 0;
    qint32 column = 0;
    bool operator==(const GridCell &) const = default;
};

// The table widget: cursor, whole-row selection and cell editor.
class GridTable {
  public:
    virtual ~GridTable() = default;

    // The current row; none while there are no rows.
    [[nodiscard]] virtual std::optional<qint32> Bookmark() const = 0;
    // Makes the row current and brings it into view. The present cell may refuse to be left: then nothing moves. A row
    // that does not exist is passed over. Clears the selection when the row changes.
    virtual void SetBookmark(qint32 row) = 0;
    // The current column; -1 when there is none.
    [[nodiscard]] virtual qint32 Col() const = 0;
    virtual void SetCol(qint32 column) = 0;
    // Makes the row at this place of the visible window current, at most the last one.
    virtual void SetRow(qint32 place) = 0;
    // Row and column at once: the present cell is asked once, and what happens at a new cell happens once. False:
    // refused, and nothing moved.
    virtual bool MoveTo(const GridCell &cell) = 0;
    // Of the current cell, on the cells' surface.
    [[nodiscard]] virtual QRect CellRect() const = 0;
    [[nodiscard]] virtual qint32 VisibleRows() const = 0;
    [[nodiscard]] virtual qint32 ApproxCount() const = 0;
    virtual void MoveFirst() = 0;
    virtual void MoveLast() = 0;

    // The rows selected as a whole, from the top.
    [[nodiscard]] virtual std::vector<qint32> SelBookmarks() const = 0;
    virtual void AddSelBookmark(qint32 row) = 0;
    virtual void RemoveSelBookmarks() = 0;
    virtual void SetSelStartCol(qint32 column) = 0;
    virtual void SetSelEndCol(qint32 column) = 0;

    // The cell editor. Text: of the current cell, what is being typed included.
    [[nodiscard]] virtual bool EditActive() const = 0;
    virtual void StartEdit() = 0;
    [[nodiscard]] virtual QString Text() const = 0;
    virtual void SetText(const QString &text) = 0;
    [[nodiscard]] virtual QString SelText() const = 0;
    virtual void SetSelText(const QString &text) = 0;
    virtual void SetSelStart(qint32 position) = 0;
    virtual void SetSelLength(qint32 length) = 0;
    // Commits the editor into the array. Nothing happens while no cell is being edited.
    virtual void Update() = 0;

    // Reads the bound array again: keeps the current row, at most the last one, and clears the selection.
    virtual void ReBind() = 0;
    // Paints again.
    virtual void Refresh() = 0;
    virtual void SetFocus() = 0;
    [[nodiscard]] virtual bool Visible() const = 0;
    // The row (by its bookmark) at a height of the table's viewport, the column at a place across it; none outside any
    // cell. A row head stands at the height of its row.
    [[nodiscard]] virtual std::optional<qint32> RowContaining(int y) const = 0;
    [[nodiscard]] virtual std::optional<qint32> ColContaining(int x) const = 0;
    // The surfaces that are pressed and dropped on: the cells' viewport and that of the row heads.
    [[nodiscard]] virtual QWidget &CellsSurface() = 0;
    [[nodiscard]] virtual QWidget &HeadsSurface() = 0;
};

// The grid itself.
class GridSurface {
  public:
    virtual ~GridSurface() = default;

    [[nodiscard]] virtual GridTable &Table() = 0;
    [[nodiscard]] virtual const GridDesign &Design() const = 0;
    [[nodiscard]] virtual Ifield &Field() = 0;
    [[nodiscard]] virtual Igrid &Grid() = 0;
    // The whole control.
    [[nodiscard]] virtual QWidget *Control() = 0;
    [[nodiscard]] virtual Transformer &Component() = 0;
    // All controls of the form; null where the grid stands on none.
    [[nodiscard]] virtual const HostControls *FormControls() const = 0;

    [[nodiscard]] virtual qint32 ColumnCount() const = 0;
    // The column on show; raises error 9 for one that does not exist.
    [[nodiscard]] virtual GridColumnFacts ColumnAt(qint32 column) const = 0;

    // The rows as shown, bound to the table; the same rows untranslated, kept only while Translated().
    [[nodiscard]] virtual XArrayDB &DisplayArray() = 0;
    [[nodiscard]] virtual const XArrayDB &DisplayArray() const = 0;
    [[nodiscard]] virtual XArrayDB &SourceArray() = 0;
    // The language is another than the one that the data stands in.
    [[nodiscard]] virtual bool Translated() const = 0;
    // The untranslated text of an ID item of the current list; none for an unknown one.
    [[nodiscard]] virtual std::optional<QString> SourceOfName(const QString &translated) const = 0;

    // Set by Igrid_InsertRow.
    [[nodiscard]] virtual bool RowInserted() const = 0;
    virtual void ClearRowInserted() = 0;

    // Raises an event to the enabler. The form may be closed inside: ask Terminated() before touching anything more.
    virtual void Raise(const FieldEvent &event) = 0;
    [[nodiscard]] virtual bool Terminated() const = 0;

    // The commit point of the current cell. cancel true: refused, the cursor stays.
    virtual void Validate(bool &cancel) = 0;
    // What happens when the cursor has come to another cell.
    virtual void RowColChange(qint32 lastColumn) = 0;
    // Binds items to the drop-down list and steps to one of them.
    virtual void PickDropdownRow(const XArrayDB &items, qint32 row) = 0;
    // What happens when the drop-down list closes; nothing unless it is open in the current cell.
    virtual void DropDownClose() = 0;
    // Lists the IDs of the current cell anew.
    virtual void RebindIDTrackerDropdown() = 0;
    // The help of the current cell.
    virtual void ShowCellHelp() = 0;

    // The hourglass over the control, and back.
    virtual void ShowHourglass() = 0;
    virtual void ShowPointer() = 0;
    // Each of the four buttons that is visible: add, insert, repeat, delete.
    virtual void SetButtonEnabledState(bool enabled) = 0;
};
