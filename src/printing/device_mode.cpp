#include "device_mode.h"

#include "printer_platform.h"

#include <QPageSize>
#include <QPrinter>

namespace {
constexpr qint16 kAcross = 2;
constexpr qint16 kColour = 2;

QPrinter::DuplexMode duplexOf(qint16 number) {
    if (number == 2)
        return QPrinter::DuplexLongSide;
    return number == 3 ? QPrinter::DuplexShortSide : QPrinter::DuplexNone;
}

qint16 numberOf(QPrinter::DuplexMode mode) {
    if (mode == QPrinter::DuplexLongSide)
        return 2;
    return mode == QPrinter::DuplexShortSide ? 3 : 1;
}

void applyPaper(qint16 number, QPrinter &printer) {
    const QPageSize::PageSizeId paper = QPageSize::id(int(number));
    if (number > 0 && paper != QPageSize::Custom)
        printer.setPageSize(QPageSize(paper));
}
} // namespace

void DeviceMode::apply(const PrinterChoice &choice, QPrinter &printer) {
    const auto counts = [&choice](qint32 field) { return (choice.fields & field) != 0; };
    if (counts(DeviceField::kOrientation))
        printer.setPageOrientation(choice.Orientation == kAcross ? QPageLayout::Landscape : QPageLayout::Portrait);
    if (counts(DeviceField::kPaperSize))
        applyPaper(choice.PaperSize, printer);
    if (counts(DeviceField::kCopies))
        printer.setCopyCount(choice.Copies);
    if (counts(DeviceField::kColor))
        printer.setColorMode(choice.Color == kColour ? QPrinter::Color : QPrinter::GrayScale);
    if (counts(DeviceField::kDuplex))
        printer.setDuplex(duplexOf(choice.Duplex));
    if (counts(DeviceField::kCollate))
        printer.setCollateCopies(choice.Collate != 0);
    if (counts(DeviceField::kPrintQuality) && choice.PrintQuality > 0)
        printer.setResolution(choice.PrintQuality);
}

PrinterChoice DeviceMode::of(const QPrinter &printer) {
    PrinterChoice choice;
    choice.DeviceName = printer.printerName();
    choice.Copies = qint16(printer.copyCount());
    choice.Duplex = numberOf(printer.duplex());
    choice.Orientation = printer.pageLayout().orientation() == QPageLayout::Landscape ? kAcross : qint16(1);
    choice.PaperSize = qint16(printer.pageLayout().pageSize().windowsId());
    choice.PrintQuality = qint16(printer.resolution());
    choice.Color = printer.colorMode() == QPrinter::Color ? kColour : qint16(1);
    choice.Collate = printer.collateCopies() ? 1 : 0;
    choice.fields = DeviceField::kAll;
    return choice;
}
