#pragma once

#include "page_sink.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>

#include <optional>

class QPagedPaintDevice;

// Pages painted on a device of the toolkit.
class PaintedPageSink : public PageSink {
  public:
    ~PaintedPageSink() override;

    [[nodiscard]] QStringList Fonts() const override;
    [[nodiscard]] PageFrame Frame() const override;
    void SetFont(const QString &family, bool bold) override;
    [[nodiscard]] double TextWidth(const QString &text) const override;
    [[nodiscard]] double TextHeight() const override;
    void BeginDocument() override;
    void PrintText(double x, double y, const QString &text) override;
    void PrintRule(double left, double right, double y) override;
    void NewPage() override;
    void EndDocument() override;

  protected:
    [[nodiscard]] virtual QPagedPaintDevice &device() const = 0;
    // Something went wrong on the device since it was opened.
    [[nodiscard]] virtual bool hasFailed() const = 0;
    [[noreturn]] static void raisePrinterError();
    // Ends painting; nothing if none runs.
    void stopPainting();

  private:
    [[nodiscard]] double toPixels(double centimetres) const;
    [[nodiscard]] double toCentimetres(double pixels) const;

    QFont mFont;
    std::optional<QFontMetricsF> mMetrics; // of the font on the device; none before the first SetFont
    QPainter mPainter;
};
