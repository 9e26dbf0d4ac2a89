#pragma once

#include "page_sink.h"

#include <functional>
#include <utility>
#include <vector>

// Pages of plain text in characters of equal width: what a report holds, for reading, comparing and for a file.
class TextPageSink final : public PageSink {
  public:
    // How many characters stand in a line and how many lines on a page, both at least 1. The defaults are those of an
    // upright A4 page.
    struct Size {
        int columns = 80;
        int lines = 66;
    };
    // The lines of each page.
    using Pages = std::vector<QStringList>;
    // finished receives the pages at the document's end.
    TextPageSink(const Size &size, std::function<void(const Pages &pages)> finished)
        : mSize(size), mFinished(std::move(finished)) {}
    // The pages as one text, parted by form feeds.
    [[nodiscard]] static QString textOf(const Pages &pages);

    [[nodiscard]] QStringList Fonts() const override;
    [[nodiscard]] PageFrame Frame() const override;
    void SetFont(const QString & /*family*/, bool /*bold*/) override {}
    [[nodiscard]] double TextWidth(const QString &text) const override;
    [[nodiscard]] double TextHeight() const override;
    void BeginDocument() override;
    void PrintText(double x, double y, const QString &text) override;
    // A line of dashes, where nothing else stands.
    void PrintRule(double left, double right, double y) override;
    void NewPage() override;
    void EndDocument() override { mFinished(mPages); }
    void CancelDocument() override {}

  private:
    void put(double x, double y, const QString &text);

    Size mSize;
    Pages mPages;
    std::function<void(const Pages &pages)> mFinished;
};
