#include "pdf_page_sink.h"

#include "product_identity.h"

#include <QLocale>
#include <QMarginsF>
#include <QPageSize>

namespace {
constexpr double kUnprintable = 5; // millimetres at each edge, as most printers have

QPageSize paperOfRegion() {
    const bool letter = QLocale::system().measurementSystem() == QLocale::ImperialUSSystem;
    return QPageSize(letter ? QPageSize::Letter : QPageSize::A4);
}
} // namespace

PdfPageSink::PdfPageSink(const QString &fileName) : mFile(fileName), mWriter(&mFile) {
    mWriter.setCreator(ProductIdentity::title());
    mWriter.setPageSize(paperOfRegion());
    mWriter.setPageMargins(QMarginsF(kUnprintable, kUnprintable, kUnprintable, kUnprintable), QPageLayout::Millimeter);
}

PdfPageSink::~PdfPageSink() { stopPainting(); }

void PdfPageSink::BeginDocument() {
    if (!mFile.open(QIODevice::WriteOnly))
        raisePrinterError();
    PaintedPageSink::BeginDocument();
}

void PdfPageSink::EndDocument() {
    PaintedPageSink::EndDocument();
    if (!mFile.commit())
        raisePrinterError();
}

void PdfPageSink::CancelDocument() {
    stopPainting();
    mFile.cancelWriting();
}
