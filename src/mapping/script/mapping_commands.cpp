#include "mapping_commands.h"

#include "string_utilities.h"
#include "value_text.h"

namespace {
// Cuts the text before a separator off; nothing if it is missing.
std::optional<QString> takeUpTo(QString &text, QChar separator) {
    const qsizetype end = text.indexOf(separator);
    if (end < 0)
        return std::nullopt;
    const QString part = TrimBlanks(text.left(end));
    text = TrimBlanks(text.mid(end + 1));
    return part;
}
} // namespace

QString MappingLine::code(const QString &line) { return line.section(u' ', 0, 0); }

std::optional<MappingRecordLine> MappingLine::splitCommand(const QString &line) {
    QString rest = TrimBlanks(line);
    if (!takeUpTo(rest, u' '))
        return std::nullopt;
    const auto uiid = takeUpTo(rest, u'-');
    const auto gridId = uiid ? takeUpTo(rest, u',') : std::nullopt;
    if (!gridId)
        return std::nullopt;
    return MappingRecordLine{*uiid, *gridId, ValueText::toIntegerOr(rest, 0)};
}

// A bracket behind the first "=" belongs to the value.
MappingValueLine MappingLine::splitUIField(const QString &line) {
    const QString text = TrimBlanks(line);
    const QString target = text.section(u'=', 0, 0);
    MappingValueLine result;
    result.value = TrimBlanks(text.section(u'=', 1));
    if (const qsizetype open = target.indexOf(u'('); open >= 0) {
        result.uiid = TrimBlanks(target.left(open));
        result.recordNr = ValueText::toIntegerOr(TrimBlanks(target.mid(open + 1).section(u')', 0, 0)), 0);
    } else {
        result.uiid = text.section(u' ', 0, 0);
    }
    return result;
}

QString MappingLine::ofValue(const MappingValueLine &line) {
    const QString record = line.recordNr >= 2 ? QStringLiteral("(%1)").arg(line.recordNr) : QString();
    return line.uiid + record + QStringLiteral(" = ") + line.value;
}

QString MappingLine::ofRecord(const QString &command, const MappingRecordLine &line) {
    return QStringLiteral("%1 %2-%3, ").arg(command, line.uiid, line.gridId) + QString::number(line.recordNr);
}
