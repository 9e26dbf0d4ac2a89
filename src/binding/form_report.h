#pragma once

#include "enabler_part.h"
#include "printable_controls.h"
#include "printed_field.h"

#include <QString>
#include <QStringList>

class Igrid;
class Inavigator;
class Iusrfrm;
class ReportLines;
class XArrayDB;

// The report of one form: its fields in tab order, indented by frame, and its grids as tables. A line that cannot be
// printed ends the walk with one message.
class FormReport : private EnablerPart {
  public:
    FormReport(FormItems &items, const FieldServices &services);

    // Prints the form under its title. printAll: every record of the form's first navigator; each is shown by the
    // navigator in turn, and stays its stored position; else the form as it stands. False when the walk was ended.
    bool Ienabler_PrintForm(Iusrfrm &form, const QString &title, ReportLines &printDialog, bool printAll);

  private:
    // What one walk over the form's controls prints, and to where.
    struct Walk {
        ReportLines &lines;
        const PrintableControls &controls;
        const ReportScope &scope;
    };
    // One walk over all controls.
    void PrintControls(const HostControls &controls, ReportLines &printDialog, const ReportScope &scope);
    // What stands in the container (null: on the form itself), behind level tabs.
    void printContents(const Walk &walk, const HostControl *container, int level);
    void printControl(const Walk &walk, HostControl &control, int level);
    void printFrame(const Walk &walk, const HostControl &frame, int level);
    void printGrid(ReportLines &lines, HostControl &control, int level);
    void printHeads(ReportLines &lines, const Igrid &grid, int level) const;
    void printRows(ReportLines &lines, Igrid &grid) const;
    [[nodiscard]] QStringList recordCells(const XArrayDB &rows, qint32 row) const;
    [[nodiscard]] QStringList valueCells(const XArrayDB &rows, qint32 row) const;
    void printAllRecords(const HostControls &controls, const QString &title, ReportLines &lines, Inavigator &navigator);
    void showRecord(Inavigator &navigator, qint32 record);
    void tellFailure() const;

    PrintedField mFields;
};
