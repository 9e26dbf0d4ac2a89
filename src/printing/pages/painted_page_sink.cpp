#include "painted_page_sink.h"

#include "run_time_error.h"

#include <QFontDatabase>
#include <QPageLayout>
#include <QPagedPaintDevice>

namespace {
constexpr double kCentimetresPerInch = 2.54;
constexpr double kMillimetresPerCentimetre = 10;
constexpr int kPointSize = 10;
} // namespace

PaintedPageSink::~PaintedPageSink() = default;

void PaintedPageSink::raisePrinterError() {
    throw RunTimeError(ErrorNumber::kPrinter, QStringLiteral("PageSink"), QStringLiteral("Printer error"));
}

// Families of several foundries are listed as "Courier [urw]".
QStringList PaintedPageSink::Fonts() const {
    QStringList fonts = QFontDatabase::families();
    for (QString &name : fonts)
        name = name.section(QStringLiteral(" ["), 0, 0);
    return fonts;
}

PageFrame PaintedPageSink::Frame() const {
    const QRectF printable = device().pageLayout().paintRect(QPageLayout::Millimeter);
    return {printable.left() / kMillimetresPerCentimetre, printable.top() / kMillimetresPerCentimetre,
            printable.width() / kMillimetresPerCentimetre, printable.height() / kMillimetresPerCentimetre};
}

void PaintedPageSink::SetFont(const QString &family, bool bold) {
    if (mMetrics && mFont.family() == family && mFont.bold() == bold)
        return;
    mFont = QFont(family, kPointSize);
    mFont.setBold(bold);
    mFont.setStyleStrategy(QFont::PreferNoShaping); // a ligature is neither as wide as two characters nor found again
    mMetrics.emplace(mFont, &device());
    if (mPainter.isActive())
        mPainter.setFont(QFont(mFont, &device()));
}

double PaintedPageSink::toPixels(double centimetres) const {
    return centimetres / kCentimetresPerInch * device().logicalDpiX();
}
double PaintedPageSink::toCentimetres(double pixels) const {
    return pixels / device().logicalDpiX() * kCentimetresPerInch;
}

double PaintedPageSink::TextWidth(const QString &text) const {
    return mMetrics ? toCentimetres(mMetrics->horizontalAdvance(text)) : 0;
}

double PaintedPageSink::TextHeight() const { return mMetrics ? toCentimetres(mMetrics->height()) : 0; }

void PaintedPageSink::BeginDocument() {
    if (!mPainter.begin(&device()) || hasFailed())
        raisePrinterError();
    mPainter.setFont(QFont(mFont, &device()));
}

void PaintedPageSink::PrintText(double x, double y, const QString &text) {
    const double ascent = mMetrics ? mMetrics->ascent() : 0;
    mPainter.drawText(QPointF(toPixels(x), toPixels(y) + ascent), text);
}

void PaintedPageSink::PrintRule(double left, double right, double y) {
    mPainter.drawLine(QPointF(toPixels(left), toPixels(y)), QPointF(toPixels(right), toPixels(y)));
}

void PaintedPageSink::NewPage() {
    if (!device().newPage() || hasFailed())
        raisePrinterError();
}

void PaintedPageSink::EndDocument() {
    stopPainting();
    if (hasFailed())
        raisePrinterError();
}

void PaintedPageSink::stopPainting() {
    if (mPainter.isActive())
        mPainter.end();
}
