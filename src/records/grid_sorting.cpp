#include "grid_sorting.h"

#include "common_error_handler.h"
#include "grid_surface.h"
#include "message_style.h"
#include "value_text.h"

GridSorting::GridSorting(GridSurface &grid, const FieldServices &services)
    : mGrid(grid), mBoxes(services.boxes), mErrors(services.errors) {}

void GridSorting::TDBGrid1_HeadClick(qint32 column) try {
    if (!mGrid.Design().Sortable || column < 0 || column >= mGrid.ColumnCount())
        return;
    bool cancel = false;
    mGrid.Validate(cancel);
    if (cancel || mGrid.Terminated())
        return;
    mGrid.Raise(FieldEvent(QStringLiteral("SortColumnByUIID"), in(mGrid.ColumnAt(column).uiid)));
    if (!mGrid.Terminated())
        mGrid.Table().SetFocus();
}
ERROR_TAIL()

bool GridSorting::FirstColumnIsSorted() const {
    const XArrayDB &rows = mGrid.DisplayArray();
    const qint32 last = rows.UpperBound(1);
    if (last < 1)
        return true;
    qint32 before = ValueText::toIntegerOr(rows.Value(0, 0), 0);
    for (qint32 row = 1; row <= last; ++row) {
        const qint32 value = ValueText::toIntegerOr(rows.Value(row, 0), 0);
        if (value < before)
            return false;
        before = value;
    }
    return true;
}

bool GridSorting::mustBeSorted() const { return mGrid.Design().RequiresSortBeforeAdd && !FirstColumnIsSorted(); }

bool GridSorting::AsksToSort(const char *prompt, const char *title) {
    if (!mustBeSorted())
        return false;
    const qint32 answer =
        mBoxes.TranslateMsgBox(QString::fromLatin1(prompt), MessageStyle::kYesNo | MessageStyle::kExclamation,
                               QString::fromLatin1(title), QString());
    if (answer == MessageAnswer::kYes && !mGrid.Terminated())
        TDBGrid1_HeadClick(0);
    return true;
}

void GridSorting::UserControl_ExitFocus() try {
    if (mustBeSorted() && mGrid.Table().Visible())
        TDBGrid1_HeadClick(0);
}
ERROR_TAIL()
