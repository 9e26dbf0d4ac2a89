#pragma once

#include "page_sink.h"

#include <vector>

// Pages of plain text in characters of equal width: what a report holds, for reading, comparing and for a file.
class TextPageSink final : public PageSink {
  public:
    // How many characters stand in a line and how many lines on a page, both at least 1. The defaults are those of an
    // upright A4 page.
    struct Size {
        int columns = 78;
        int lines = 55;
    };
    // pages receives the finished lines, a list a page; it outlives the sink.
    TextPageSink(const Size &size, std::vector<QStringList> &pages) : mSize(size), mPages(pages) {}
    // The pages as one text, parted by form feeds.
    [[nodiscard]] static QString textOf(const std::vector<QStringList> &pages);

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
    void EndDocument() override {}
    void CancelDocument() override { mPages.clear(); }

  private:
    void put(double x, double y, const QString &text);

    Size mSize;
    std::vector<QStringList> &mPages;
};
