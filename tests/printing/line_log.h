#pragma once

#include "report_lines.h"

#include <QStringList>

// A report's lines as texts: "* " before a bold one, "= " before a ruled one, "| " before a table row, "  " before a
// plain one; tabs are shown as ">". Fails from a given line on.
class LineLog final : public ReportLines {
  public:
    QStringList lines;
    int failAt = -1; // counted from 0

    bool PrintLine(const QString &Text, bool Bold, bool Columns, bool Ruled) override {
        if (lines.size() == failAt)
            return false;
        QString kind = QStringLiteral("  ");
        if (Bold)
            kind = Ruled ? QStringLiteral("= ") : QStringLiteral("* ");
        if (Columns)
            kind = QStringLiteral("| ");
        lines << kind + QString(Text).replace(u'\t', u'>').replace(QStringLiteral("\r\n"), QStringLiteral("<br>"));
        return true;
    }
};
