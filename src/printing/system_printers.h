#pragma once

#include "printer_platform.h"

#include <optional>

class QPrinter;

// The system's printers. Where the environment variable KX4600_PRINT_FILE names a file, every document goes into that
// file, as PDF or text by its name, and no printer is needed.
class SystemPrinters final : public PrinterPlatform {
  public:
    [[nodiscard]] QStringList Printers() const override;
    [[nodiscard]] QString DefaultPrinter() const override;
    [[nodiscard]] QString CurrentPrinter() const override;
    void MakeCurrent(const QString &printer) override { mCurrent = printer; }
    void Apply(const PrinterChoice &choice) override { mChoice = choice; }
    [[nodiscard]] std::unique_ptr<PageSink> OpenSink() override;
    bool PrintDlg(QWidget *window, qint32 flags, PrinterChoice &choice) override;
    [[nodiscard]] QString WindowFont() const override;
    [[nodiscard]] bool IsChineseLocale() const override;

  private:
    [[nodiscard]] std::unique_ptr<QPrinter> makePrinter(const QString &name) const;

    QString mCurrent; // "": the default
    std::optional<PrinterChoice> mChoice;
};
