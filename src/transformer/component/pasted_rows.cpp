#include "pasted_rows.h"

#include <algorithm>

namespace {

std::vector<QStringList> linesOf(QString text) {
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
    if (text.endsWith(u'\n'))
        text.chop(1);
    std::vector<QStringList> lines;
    if (text.isEmpty())
        return lines;
    for (const QString &line : text.split(u'\n'))
        lines.push_back(line.split(u'\t'));
    return lines;
}

qsizetype widestOf(const std::vector<QStringList> &lines) {
    qsizetype widest = 0;
    for (const QStringList &line : lines)
        widest = std::max(widest, line.size());
    return widest;
}

// The grid's columns that the cells name, each once; empty when one of them names none.
std::vector<qsizetype> columnsByName(const QStringList &cells, const std::vector<PastedRows::Head> &heads) {
    std::vector<qsizetype> columns;
    for (const QString &cell : cells) {
        const QString name = cell.trimmed();
        qsizetype found = -1;
        for (qsizetype column = 0; column < qsizetype(heads.size()) && found < 0; ++column) {
            const PastedRows::Head &head = heads[std::size_t(column)];
            const bool isFree = std::ranges::find(columns, column) == columns.end();
            if (isFree && (name == head.english || name == head.translated))
                found = column;
        }
        if (found < 0)
            return {};
        columns.push_back(found);
    }
    return columns;
}

} // namespace

PastedRows PastedRows::read(const QString &text, const std::vector<Head> &heads, qsizetype focused) {
    PastedRows result;
    result.rows = linesOf(text);
    if (result.rows.empty())
        return result;
    result.columns = columnsByName(result.rows.front(), heads);
    const bool byName = !result.columns.empty();
    if (byName) {
        result.rows.erase(result.rows.begin());
        result.firstLine = 2;
    }
    const qsizetype widest = widestOf(result.rows);
    result.isBlock = !byName && widest < qsizetype(heads.size());
    const qsizetype first = result.isBlock ? focused : 0;
    for (auto cell = qsizetype(result.columns.size()); cell < widest; ++cell) {
        const qsizetype column = byName ? -1 : first + cell;
        result.columns.push_back(column < qsizetype(heads.size()) ? column : -1);
    }
    return result;
}
