#pragma once

#include "printer_platform.h"
#include "window_services.h"

// Holds the printer choice from one report to the next and drives the print dialog. Failures are told.
class clsPrinterSettings {
  public:
    // Both outlive it.
    clsPrinterSettings(PrinterPlatform &platform, MessageBoxes &boxes) : mPlatform(platform), mBoxes(boxes) {}

    // The system's print dialog; flags 0 stands for PrintDialogFlags::kDefault. True when confirmed; the choice is then
    // kept.
    bool ShowPrinter(QWidget *window, qint32 flags);
    // Makes the chosen printer the current one and gives it the settings. Nothing without a choice.
    void SetupPrinterObject();

    [[nodiscard]] const PrinterChoice &Choice() const { return mChoice; }

  private:
    void selectChosen();

    PrinterPlatform &mPlatform;
    MessageBoxes &mBoxes;
    PrinterChoice mChoice;
};
