#pragma once

#include "painted_page_sink.h"

#include <QPrinter>

#include <memory>

// Pages on a printer, or on the preview's picture of one.
class PrinterPageSink final : public PaintedPageSink {
  public:
    explicit PrinterPageSink(std::unique_ptr<QPrinter> printer);
    // The printer outlives the sink.
    explicit PrinterPageSink(QPrinter &printer);
    ~PrinterPageSink() override;

    [[nodiscard]] PageFrame Frame() const override;
    void CancelDocument() override;

  protected:
    [[nodiscard]] QPagedPaintDevice &device() const override { return mPrinter; }
    [[nodiscard]] bool hasFailed() const override;

  private:
    std::unique_ptr<QPrinter> mOwned;
    QPrinter &mPrinter;
};
