#pragma once

#include "cls_print.h"
#include "report_forms.h"
#include "system_printers.h"

class ErrorReport;
class QWidget;
struct FieldServices;

// Print and Printer Settings. The printer choice lives here, so that it survives from one report to the next.
class PrintCommands {
  public:
    // All outlive it.
    PrintCommands(const FieldServices &services, const ReportForms::Parts &parts, QWidget &window);

    // Takes the value that still stands in an active editor, then shows the report dialog.
    void mnuPrint_Click();
    void mnuPrinterSettings_Click();

  private:
    const FieldServices &mServices;
    ErrorReport &mErrors;
    QWidget &mWindow;
    ReportForms mForms;
    SystemPrinters mPrinters;
    clsPrint mPrint;
};
