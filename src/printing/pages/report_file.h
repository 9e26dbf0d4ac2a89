#pragma once

#include <QString>

#include <memory>

class PageSink;

// Pages in a file, which appears whole or not at all: as text where the name ends in .txt, else as PDF.
[[nodiscard]] std::unique_ptr<PageSink> reportFile(const QString &fileName);
