#include "print_commands.h"

#include "common_error_handler.h"
#include "frm_print.h"
#include "process_values.h"
#include "window_services.h"

PrintCommands::PrintCommands(const FieldServices &services, const ReportForms::Parts &parts, QWidget &window)
    : mServices(services), mErrors(services.errors), mWindow(window), mForms(parts),
      mPrint(mPrinters, services.boxes, services.errors) {}

void PrintCommands::mnuPrint_Click() try {
    if (const auto enabler = mServices.process.colEnablers.Item(QStringLiteral("Main")))
        enabler->Ienabler_ForceSaveToCurrentField();
    frmPrint dialog(mServices, mForms, mPrinters, &mWindow);
    dialog.PrinterSettings(mPrint);
    dialog.exec();
}
ERROR_TAIL()

void PrintCommands::mnuPrinterSettings_Click() try { mPrint.PrintDialog(&mWindow, PrintDialogFlags::kReport); }
ERROR_TAIL()
