#pragma once

#include <QString>

// Where a form's report goes, line by line: the report dialog, a text, a test.
class ReportLines {
  public:
    virtual ~ReportLines() = default;
    // One logical line, which may take several on paper. Bold: banner, title, record. Columns: the text is a table row,
    // its cells parted by tabs. Ruled: a rule before and after it. False: it could not be printed, and no further line
    // will be.
    virtual bool PrintLine(const QString &Text, bool Bold, bool Columns, bool Ruled) = 0;
};
