#include "grid_clipboard.h"

#include "common_error_handler.h"
#include "grid_surface.h"
#include "ifield.h"
#include "igrid.h"
#include "inavigator.h"
#include "message_style.h"
#include "navigator_buttons.h"
#include "record_text.h"
#include "transformer.h"

#include <QStringList>

#include <algorithm>

namespace {
bool isNavigatorOf(const HostControl *control, const QString &gridId) {
    const auto *navigator = dynamic_cast<const Inavigator *>(control->object());
    return navigator != nullptr && navigator->Inavigator_GridID() == gridId;
}

bool addsRecordsOf(const HostControl *control, const QString &gridId) {
    const auto *buttons = dynamic_cast<const NavigatorButtons *>(control->object());
    return buttons != nullptr && isNavigatorOf(control, gridId) && buttons->ButtonAdd();
}
} // namespace

GridClipboard::GridClipboard(GridSurface &grid, const FieldServices &services)
    : mGrid(grid), mServices(services), mErrors(services.errors), mCells(grid) {}

std::optional<GridColumnFacts> GridClipboard::currentColumn() const {
    const qint32 column = mGrid.Table().Col();
    if (column < 0 || column >= mGrid.ColumnCount())
        return std::nullopt;
    return mGrid.ColumnAt(column);
}

qint32 GridClipboard::Ifield_GetEditOperations() try {
    return (offersPaste() ? EditOperation::kPaste : 0) | (mGrid.Table().Bookmark() ? cellOperations() : 0);
}
ERROR_TAIL(0)

bool GridClipboard::offersPaste() const {
    if (!mServices.clipboard.HasText())
        return false;
    if (RecordText::withCrLf(mServices.clipboard.Text()).contains(u'\r'))
        return mayAddRecords();
    return mGrid.Table().Bookmark() && GridCellWriter::takesText(mGrid, mGrid.Table().Col());
}

bool GridClipboard::mayAddRecords() const {
    const GridDesign &design = mGrid.Design();
    const HostControls *controls = mGrid.FormControls();
    if (design.ButtonAdd || controls == nullptr)
        return design.ButtonAdd;
    return std::ranges::any_of(*controls,
                               [&](const HostControl *control) { return addsRecordsOf(control, design.ID); });
}

bool GridClipboard::cutsFromEditor() const {
    const auto column = currentColumn();
    return column && column->type == ColumnType::kText && mGrid.Table().EditActive() &&
           !mGrid.Table().SelText().isEmpty();
}

qint32 GridClipboard::cellOperations() const {
    const auto column = currentColumn();
    if (!column || column->type != ColumnType::kText || !mGrid.Table().EditActive())
        return EditOperation::kCopy;
    return cutsFromEditor() ? EditOperation::kCut | EditOperation::kCopy : 0;
}

void GridClipboard::mnuCopy_Click() try {
    const GridTable &table = mGrid.Table();
    const std::vector<qint32> rows = table.SelBookmarks();
    const QString selected = table.SelText();
    QString text;
    if (!rows.empty())
        text = RecordText::of(mGrid, rows);
    else if (table.EditActive() && !selected.isEmpty())
        text = selected;
    else if (table.Bookmark())
        text = table.Text();
    mServices.clipboard.SetText(text);
}
ERROR_TAIL()

void GridClipboard::mnuCut_Click() try {
    if (!cutsFromEditor())
        return;
    mServices.clipboard.SetText(mGrid.Table().SelText());
    mGrid.Table().SetSelText(QString());
}
ERROR_TAIL()

void GridClipboard::mnuPaste_Click() try {
    Transformer &component = mGrid.Component();
    component.BeginBatchUpdate();
    if (mServices.clipboard.HasText())
        paste(RecordText::withCrLf(mServices.clipboard.Text()));
    component.EndBatchUpdate();
}
ERROR_TAIL()

void GridClipboard::paste(const QString &text) {
    if (RecordText::isRecords(text))
        ImportRecords();
    else if (mGrid.Table().Bookmark() && GridCellWriter::takesText(mGrid, mGrid.Table().Col()))
        pasteValue(text);
}

void GridClipboard::pasteValue(const QString &text) {
    if (currentColumn()->type == ColumnType::kText)
        replaceSelection(text);
    else
        mCells.SetCellValue(text);
}

void GridClipboard::replaceSelection(const QString &text) {
    GridTable &table = mGrid.Table();
    if (!table.EditActive()) {
        table.StartEdit();
        table.SetSelStart(0);
        table.SetSelLength(qint32(table.Text().size()));
    }
    table.SetSelText(text);
    mCells.SetCellValue(table.Text());
}

QString GridClipboard::recordsToOverwrite() {
    const std::vector<qint32> rows = mGrid.Table().SelBookmarks();
    if (rows.empty())
        return recordThatABlockStartsAt();
    const qint32 answer = mServices.boxes.TranslateMsgBox(
        QStringLiteral("Do you want to overwrite the selected records?"),
        MessageStyle::kYesNo | MessageStyle::kExclamation, QStringLiteral("Import Records"), QString());
    if (answer != MessageAnswer::kYes)
        return {};
    QStringList records;
    for (const qint32 row : rows)
        records << QString::number(row + 1);
    return records.join(u'|');
}

// Where a navigator shows the current record the component knows it.
QString GridClipboard::recordThatABlockStartsAt() const {
    const auto row = mGrid.Table().Bookmark();
    const HostControls *controls = mGrid.FormControls();
    const bool known = controls != nullptr && std::ranges::any_of(*controls, [this](const HostControl *control) {
                           return isNavigatorOf(control, mGrid.Design().ID);
                       });
    const bool asked = row && !known && RecordText::isBlock(mGrid, RecordText::withCrLf(mServices.clipboard.Text()));
    return asked ? QString::number(*row + 1) : QString();
}

// What is being typed is written first, while its echo is still on.
bool GridClipboard::mayImport() {
    bool cancel = false;
    if (mGrid.Table().EditActive())
        mGrid.Validate(cancel);
    return !cancel && !mGrid.Terminated();
}

// The component is spoken to itself where the form has been closed meanwhile: the echo must never stay off.
void GridClipboard::ImportRecords() {
    if (!mayImport())
        return;
    const auto echo = QStringLiteral("SetProviderUpdateUIOnFieldChange");
    mGrid.Raise(FieldEvent(echo, in(false)));
    const QString selected = recordsToOverwrite();
    mGrid.Raise(FieldEvent(QStringLiteral("ImportRecordByPaste"), in(mGrid.Grid().Igrid_GetUIIDList()), in(selected)));
    if (mGrid.Terminated()) {
        mGrid.Component().SetProviderUpdateUIOnFieldChange(true);
        return;
    }
    if (mGrid.DisplayArray().UpperBound(1) >= 0) {
        mGrid.Table().SetBookmark(1);
        mGrid.Table().SetFocus();
    }
    mGrid.Raise(FieldEvent(echo, in(true)));
}

void GridClipboard::Ifield_SelectAll() try {
    GridTable &table = mGrid.Table();
    table.SetSelStartCol(0);
    table.SetSelEndCol(mGrid.ColumnCount() - 1);
    table.RemoveSelBookmarks();
    for (qint32 row = 0; row <= mGrid.DisplayArray().UpperBound(1); ++row)
        table.AddSelBookmark(row);
}
ERROR_TAIL()
