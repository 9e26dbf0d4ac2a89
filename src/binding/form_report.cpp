#include "form_report.h"

#include "common_error_handler.h"
#include "form_items.h"
#include "igrid.h"
#include "inavigator.h"
#include "iusrfrm.h"
#include "message_style.h"
#include "report_lines.h"
#include "string_utilities.h"
#include "transformer.h"
#include "translation.h"
#include "value_text.h"

#include <algorithm>

namespace {
constexpr QChar kTab = u'\t';

QString tabs(int level) { return QString(level, kTab); }

[[noreturn]] void raisePrinterError() {
    throw RunTimeError(ErrorNumber::kPrinter, QStringLiteral("FormReport"), QStringLiteral("Printer error"));
}

void require(bool printed) {
    if (!printed)
        raisePrinterError();
}

void printBold(ReportLines &lines, const QString &text) { require(lines.PrintLine(text, true, false, false)); }
void printPlain(ReportLines &lines, const QString &text) { require(lines.PrintLine(text, false, false, false)); }
void printBlank(ReportLines &lines) { printPlain(lines, QStringLiteral(" ")); }

// A table needs two columns; a single cell is a plain line.
void printCells(ReportLines &lines, const QStringList &cells) {
    if (cells.size() < 2)
        printPlain(lines, cells.join(kTab) + kTab);
    else
        require(lines.PrintLine(cells.join(kTab), false, true, false));
}

HostControl *firstNavigator(const HostControls &controls) {
    const auto found = std::ranges::find_if(controls, [](const HostControl *control) {
        return control != nullptr && fieldTypeOf(control->TypeName()) == FieldType::PageNavigator;
    });
    return found == controls.end() ? nullptr : *found;
}

Inavigator &navigatorOf(const HostControl &control) { return dynamic_cast<Inavigator &>(*control.object()); }

QString textOf(const XArrayDB &rows, qint32 row, qint32 column) {
    return column > rows.UpperBound(2) ? QString() : ValueText::of(rows.Value(row, column));
}
} // namespace

FormReport::FormReport(FormItems &items, const FieldServices &services)
    : EnablerPart(items, services), mFields(items, services) {}

bool FormReport::Ienabler_PrintForm(Iusrfrm &form, const QString &title, ReportLines &printDialog, bool printAll) try {
    printBold(printDialog, title + QStringLiteral("\r\n"));
    printBold(printDialog, QString(title.size(), u'-'));
    HostControl *const navigator = printAll ? firstNavigator(form.Iusrfrm_Controls()) : nullptr;
    if (navigator != nullptr)
        printAllRecords(form.Iusrfrm_Controls(), title, printDialog, navigatorOf(*navigator));
    else
        PrintControls(form.Iusrfrm_Controls(), printDialog, {});
    return true;
} catch (...) {
    tellFailure();
    return false;
}

void FormReport::tellFailure() const {
    mServices.boxes.TranslateMsgBox(QStringLiteral("An error has occurred while attempting to print report. The print "
                                                   "has been cancelled. Please check printer settings."),
                                    MessageStyle::kExclamation, QStringLiteral("Print Error"), QString());
}

void FormReport::printAllRecords(const HostControls &controls, const QString &title, ReportLines &lines,
                                 Inavigator &navigator) {
    ReportScope scope{.part = ReportScope::Part::OutsideNavigator,
                      .stream = navigator.Inavigator_NavigatorStream(),
                      .record = 0,
                      .guideUIID = navigator.Inavigator_GuideUIID(),
                      .gridControl = navigator.Inavigator_GridControl()};
    PrintControls(controls, lines, scope);
    printBlank(lines);
    scope.part = ReportScope::Part::Record;
    const qint32 records = component().GetNumberOfRecords(scope.guideUIID);
    for (scope.record = 1; scope.record <= records; ++scope.record) {
        showRecord(navigator, scope.record);
        const QString name = ValueText::of(component().GetValue(scope.guideUIID, scope.record));
        printBold(lines, title + u' ' + name);
        PrintControls(controls, lines, scope);
        printBlank(lines);
    }
}

// The position is stored first, so that the navigator finds it there and does not validate the record that it leaves: a
// report shows invalid records too.
void FormReport::showRecord(Inavigator &navigator, qint32 record) {
    const QString storage = navigator.Inavigator_StoragePositionUIID();
    bool accepted = false;
    if (!storage.isEmpty())
        component().SetValue(storage, record, 1, true, accepted);
    navigator.Inavigator_Position(record);
}

void FormReport::PrintControls(const HostControls &controls, ReportLines &printDialog, const ReportScope &scope) {
    const PrintableControls printable(controls, scope);
    printContents({printDialog, printable, scope}, nullptr, 0);
}

void FormReport::printContents(const Walk &walk, const HostControl *container, int level) {
    for (HostControl *control : walk.controls.GetPrintableControls(container))
        printControl(walk, *control, level);
}

void FormReport::printControl(const Walk &walk, HostControl &control, int level) {
    switch (const FieldType type = fieldTypeOf(control.TypeName())) {
    case FieldType::Frame:
    case FieldType::PlainFrame:
        printFrame(walk, control, level);
        break;
    case FieldType::Tab:
        printContents(walk, &control, level);
        break;
    case FieldType::Grid:
        printGrid(walk.lines, control, level);
        break;
    default: {
        const Ifield &field = *control.object();
        const qint32 record = walk.scope.record > 0 ? walk.scope.record : field.Ifield_GetRecordNr();
        printPlain(walk.lines, tabs(level) + mFields.line(field, type, record));
    }
    }
}

void FormReport::printFrame(const Walk &walk, const HostControl &frame, int level) {
    const Ifield *const field = fieldOf(&frame);
    printPlain(walk.lines, tabs(level) + (field == nullptr ? frame.Caption() : field->Ifield_GetName()));
    printContents(walk, &frame, level + 1);
    printBlank(walk.lines);
}

void FormReport::printGrid(ReportLines &lines, HostControl &control, int level) {
    auto &grid = dynamic_cast<Igrid &>(*control.object());
    printHeads(lines, grid, level);
    printRows(lines, grid);
    printBlank(lines);
}

void FormReport::printHeads(ReportLines &lines, const Igrid &grid, int level) const {
    QStringList heads{QStringLiteral("ID"), QStringLiteral("Value")};
    if (grid.Igrid_Dynamic())
        heads = grid.Igrid_GetHeader();
    else
        printPlain(lines, tabs(level));
    for (QString &head : heads)
        head = mServices.translation.NLSStr(head);
    printCells(lines, heads);
}

void FormReport::printRows(ReportLines &lines, Igrid &grid) const {
    const Translation &translation = mServices.translation;
    const XArrayDB &rows = grid.Igrid_GetArray();
    if (rows.UpperBound(1) < 0)
        printPlain(lines, translation.NLSStr(QStringLiteral("No records")) + kTab);
    for (qint32 row = 0; row <= rows.UpperBound(1); ++row)
        printCells(lines, grid.Igrid_Dynamic() ? recordCells(rows, row) : valueCells(rows, row));
}

QStringList FormReport::recordCells(const XArrayDB &rows, qint32 row) const {
    QStringList cells;
    for (qint32 column = 0; column <= rows.UpperBound(2); ++column)
        cells << mServices.translation.NLSStr(TrimBlanks(textOf(rows, row, column)));
    return cells;
}

QStringList FormReport::valueCells(const XArrayDB &rows, qint32 row) const {
    return {mServices.translation.NLSStr(textOf(rows, row, 0)), textOf(rows, row, 1)};
}
