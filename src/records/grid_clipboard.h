#pragma once

#include "grid_cell_writer.h"
#include "window_services.h"

#include <optional>

class GridSurface;
struct GridColumnFacts;

// Bits of the edit commands that now apply.
namespace EditOperation {
inline constexpr qint32 kCut = 1;
inline constexpr qint32 kCopy = 2;
inline constexpr qint32 kPaste = 4;
} // namespace EditOperation

// The edit commands of a grid. Selected rows are copied as records, a cell as its value; pasted text of several values
// goes to the component as records, one value into the current cell. Text is read with either kind of line end and
// written with CR LF.
class GridClipboard {
  public:
    // Both outlive this.
    GridClipboard(GridSurface &grid, const FieldServices &services);

    [[nodiscard]] qint32 Ifield_GetEditOperations();
    // With nothing to copy the clipboard becomes empty.
    void mnuCopy_Click();
    // Of the cell editor's selection only.
    void mnuCut_Click();
    void mnuPaste_Click();
    void Ifield_SelectAll();

  private:
    [[nodiscard]] std::optional<GridColumnFacts> currentColumn() const;
    [[nodiscard]] bool offersPaste() const;
    [[nodiscard]] bool mayAddRecords() const;
    [[nodiscard]] qint32 cellOperations() const;
    [[nodiscard]] bool cutsFromEditor() const;
    void paste(const QString &text);
    void pasteValue(const QString &text);
    void replaceSelection(const QString &text);
    [[nodiscard]] bool mayImport();
    void ImportRecords();
    [[nodiscard]] QString recordsToOverwrite();
    [[nodiscard]] QString recordThatABlockStartsAt() const;

    GridSurface &mGrid;
    FieldServices mServices;
    ErrorReport &mErrors;
    GridCellWriter mCells;
};
