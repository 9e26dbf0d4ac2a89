#pragma once

#include "report_lines.h"

#include <vector>

// The lines of a report, kept to be printed later and more than once.
class RecordedReport final : public ReportLines {
  public:
    bool PrintLine(const QString &Text, bool Bold, bool Columns, bool Ruled) override {
        mLines.push_back({Text, Bold, Columns, Ruled});
        return true;
    }
    // False as soon as one cannot be printed.
    bool PrintTo(ReportLines &lines) const {
        for (const Line &line : mLines) {
            if (!lines.PrintLine(line.text, line.bold, line.columns, line.ruled))
                return false;
        }
        return true;
    }

  private:
    struct Line {
        QString text;
        bool bold;
        bool columns;
        bool ruled;
    };
    std::vector<Line> mLines;
};
