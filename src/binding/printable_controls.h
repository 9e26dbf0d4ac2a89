#pragma once

#include "field_type.h"
#include "host_control.h"

#include <QString>

// Which controls of a form a walk of the report takes.
struct ReportScope {
    enum class Part {
        Everything,       // the form as it stands
        OutsideNavigator, // what no navigator drives
        Record            // what one navigator drives, in one of its records
    };
    Part part = Part::Everything;
    // Of the navigator; only where the part is not Everything.
    qint32 stream = 0;
    qint32 record = 0; // from 1
    QString guideUIID;
    QString gridControl; // control name
};

// Finds what is to be printed inside a container.
class PrintableControls {
  public:
    // Both outlive it. controls are all of the form.
    PrintableControls(const HostControls &controls, const ReportScope &scope) : mControls(controls), mScope(scope) {}

    // Fields, grids, frames and tab controls directly in the container (null: on the form itself), in tab order. Fields
    // that are hidden, that the component does not know or that lie outside the scope are left out, and so are frames
    // and tab controls with nothing printable inside.
    [[nodiscard]] HostControls GetPrintableControls(const HostControl *container) const;

  private:
    [[nodiscard]] bool isPrintable(const HostControl &control) const;
    [[nodiscard]] bool isInScope(const HostControl &control, FieldType type) const;
    [[nodiscard]] bool isGridInScope(const HostControl &control) const;

    const HostControls &mControls;
    const ReportScope &mScope;
};
