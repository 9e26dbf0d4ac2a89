#include "pdf_page_sink.h"

#include "product_identity.h"

#include <QLocale>
#include <QMarginsF>
#include <QPageSize>

namespace {
QPageSize paperOfRegion() {
    const bool letter = QLocale::system().measurementSystem() == QLocale::ImperialUSSystem;
    return QPageSize(letter ? QPageSize::Letter : QPageSize::A4);
}
} // namespace

PdfPageSink::PdfPageSink(const QString &fileName) : mFile(fileName), mWriter(&mFile) {
    mWriter.setCreator(ProductIdentity::title());
    mWriter.setPageSize(paperOfRegion());
    mWriter.setPageMargins(QMarginsF()); // a file has no edge that cannot be printed on
}

PdfPageSink::~PdfPageSink() { stopPainting(); }

void PdfPageSink::BeginDocument() {
    if (!mFile.open(QIODevice::WriteOnly))
        raisePrinterError();
    PaintedPageSink::BeginDocument();
}

void PdfPageSink::EndDocument() {
    PaintedPageSink::EndDocument();
    if (!mFile.flush() || !mFile.commit()) // the flush tells that the disk is full
        raisePrinterError();
}

void PdfPageSink::CancelDocument() {
    stopPainting();
    mFile.cancelWriting();
}
