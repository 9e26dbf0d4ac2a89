#include "printer_page_sink.h"

#include "run_time_error.h"

#include <utility>

PrinterPageSink::PrinterPageSink(std::unique_ptr<QPrinter> printer) : mOwned(std::move(printer)), mPrinter(*mOwned) {}

PrinterPageSink::PrinterPageSink(QPrinter &printer) : mPrinter(printer) {}

PrinterPageSink::~PrinterPageSink() { stopPainting(); }

PageFrame PrinterPageSink::Frame() const {
    if (!mPrinter.isValid())
        throw RunTimeError(ErrorNumber::kPrinterSetup, QStringLiteral("PageSink"), QStringLiteral("Printer set-up"));
    return PaintedPageSink::Frame();
}

bool PrinterPageSink::hasFailed() const {
    return mPrinter.printerState() == QPrinter::Error || mPrinter.printerState() == QPrinter::Aborted;
}

void PrinterPageSink::CancelDocument() {
    mPrinter.abort();
    stopPainting();
}
