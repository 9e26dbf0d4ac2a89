#pragma once

#include "painted_page_sink.h"

#include <QPdfWriter>
#include <QSaveFile>

// Pages in a PDF file, which appears whole or not at all.
class PdfPageSink final : public PaintedPageSink {
  public:
    explicit PdfPageSink(const QString &fileName);
    ~PdfPageSink() override;

    void BeginDocument() override;
    void EndDocument() override;
    void CancelDocument() override;

  protected:
    [[nodiscard]] QPagedPaintDevice &device() const override { return mWriter; }
    [[nodiscard]] bool hasFailed() const override { return mFile.error() != QFileDevice::NoError; }

  private:
    QSaveFile mFile;
    mutable QPdfWriter mWriter; // metrics are asked of a device that can be painted on
};
