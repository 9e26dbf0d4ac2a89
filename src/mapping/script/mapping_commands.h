#pragma once

#include <QString>

#include <optional>

// The lines of a script's section "UI Fields:".

// "Add UIID-GridID, RecordNr"; also Insert, Repeat and Delete.
struct MappingRecordLine {
    QString uiid;
    QString gridId;
    qint32 recordNr = 0;
};
// "UIID = Value" for record 1, "UIID(RecordNr) = Value".
struct MappingValueLine {
    QString uiid;
    qint32 recordNr = 1;
    QString value;
};

namespace MappingLine {
// The text before the first blank: the command, or what is set.
[[nodiscard]] QString code(const QString &line);
// Nothing where one of the separators (blank, "-", ",") is missing.
[[nodiscard]] std::optional<MappingRecordLine> splitCommand(const QString &line);
[[nodiscard]] MappingValueLine splitUIField(const QString &line);
// As a script writes it: the record is left out for 1.
[[nodiscard]] QString ofValue(const MappingValueLine &line);
[[nodiscard]] QString ofRecord(const QString &command, const MappingRecordLine &line);
} // namespace MappingLine
