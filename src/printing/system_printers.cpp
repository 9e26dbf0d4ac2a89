#include "system_printers.h"

#include "device_mode.h"
#include "printer_page_sink.h"
#include "report_file.h"
#include "run_time_error.h"

#include <QApplication>
#include <QFontInfo>
#include <QLocale>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>

QStringList SystemPrinters::Printers() const { return QPrinterInfo::availablePrinterNames(); }
QString SystemPrinters::DefaultPrinter() const { return QPrinterInfo::defaultPrinterName(); }
QString SystemPrinters::CurrentPrinter() const { return mCurrent.isEmpty() ? DefaultPrinter() : mCurrent; }

std::unique_ptr<PageSink> SystemPrinters::OpenSink() {
    const QString file = qEnvironmentVariable("KX4600_PRINT_FILE");
    if (!file.isEmpty())
        return reportFile(file);
    if (Printers().isEmpty())
        return nullptr;
    std::unique_ptr<QPrinter> printer = makePrinter(CurrentPrinter());
    if (mChoice)
        DeviceMode::apply(*mChoice, *printer);
    return std::make_unique<PrinterPageSink>(std::move(printer));
}

// Without a name the first printer there is.
std::unique_ptr<QPrinter> SystemPrinters::makePrinter(const QString &name) const {
    const QString printer = name.isEmpty() ? Printers().value(0) : name;
    return std::make_unique<QPrinter>(QPrinterInfo::printerInfo(printer), QPrinter::HighResolution);
}

bool SystemPrinters::PrintDlg(QWidget *window, qint32 flags, PrinterChoice &choice) {
    if (Printers().isEmpty())
        throw RunTimeError(ErrorNumber::kPrinter, QStringLiteral("SystemPrinters"), QStringLiteral("Printer error"));
    const std::unique_ptr<QPrinter> printer = makePrinter(CurrentPrinter());
    DeviceMode::apply(choice, *printer);
    QPrintDialog dialog(printer.get(), window);
    const bool report = flags == PrintDialogFlags::kReport;
    dialog.setOption(QAbstractPrintDialog::PrintToFile, !report);
    dialog.setOption(QAbstractPrintDialog::PrintSelection, false);
    if (dialog.exec() != QDialog::Accepted)
        return false;
    choice = DeviceMode::of(*printer);
    return true;
}

QString SystemPrinters::WindowFont() const { return QFontInfo(QApplication::font()).family(); }

bool SystemPrinters::IsChineseLocale() const {
    const QLocale locale = QLocale::system();
    return locale.language() == QLocale::Chinese && locale.territory() == QLocale::China;
}
