#include "mapping_replay.h"

#include "mapping_commands.h"
#include "message_style.h"
#include "transformer.h"
#include "translation.h"
#include "window_services.h"

#include <algorithm>
#include <iterator>

struct MappingReplay::Command {
    const char *code;
    // False: refused.
    bool (*run)(Transformer &transformer, MappingRecordLine &line);
    const char *failure;
};

const MappingReplay::Command MappingReplay::kCommands[] = {
    {"Add",
     [](Transformer &transformer, MappingRecordLine &line) {
         bool ok = false;
         transformer.AddRecord(line.uiid, line.gridId, line.recordNr, ok);
         return ok;
     },
     "Error adding record %0:S for field %1:S in grid %2:S"},
    {"Repeat",
     [](Transformer &transformer, MappingRecordLine &line) {
         bool ok = false;
         transformer.RepeatRecord(line.uiid, line.recordNr, line.gridId, ok);
         return ok;
     },
     "Error repeating record %0:S for field %1:S in grid %2:S"},
    {"Insert",
     [](Transformer &transformer, MappingRecordLine &line) {
         bool ok = false;
         transformer.InsertRecord(line.uiid, line.recordNr, line.gridId, ok);
         return ok;
     },
     "Error inserting record %0:S for field  %1:S in grid %2:S"},
    {"Delete",
     [](Transformer &transformer, MappingRecordLine &line) {
         bool ok = false;
         transformer.DeleteRecord(line.uiid, line.recordNr, ok);
         return ok;
     },
     "Error deleting record %0:S for field %1:S in grid %2:S"},
};

bool MappingReplay::run(const QStringList &lines) {
    bool allDone = true;
    for (const QString &line : lines)
        allDone = runLine(line) && allDone;
    mTransformer.SaveForm(mTransformer.GetCurrentTier());
    return allDone;
}

bool MappingReplay::runLine(const QString &line) {
    const QString code = MappingLine::code(line);
    const auto *const command =
        std::ranges::find_if(kCommands, [&code](const Command &row) { return code == QLatin1String(row.code); });
    return command == std::end(kCommands) ? setValue(line) : runCommand(line, *command);
}

bool MappingReplay::runCommand(const QString &line, const Command &command) {
    auto parts = MappingLine::splitCommand(line);
    if (!parts) {
        tell(QStringLiteral("Invalid line '%0:S'"), {line});
        return false;
    }
    const qint32 record = parts->recordNr; // adding writes back
    if (command.run(mTransformer, *parts))
        return true;
    tell(QString::fromLatin1(command.failure), {QString::number(record), parts->uiid, parts->gridId});
    return false;
}

bool MappingReplay::setValue(const QString &line) {
    const MappingValueLine parts = MappingLine::splitUIField(line);
    if (mTransformer.GetNumberOfRecords(parts.uiid) < parts.recordNr) {
        tell(QStringLiteral("Error setting '%0:S'.  Record %1:S for %0:S does not exist"),
             {parts.uiid, QString::number(parts.recordNr)});
        return false;
    }
    bool ok = false;
    mTransformer.SetValue(parts.uiid, parts.value, parts.recordNr, true, ok);
    return ok;
}

// A plain box: a line may hold what parts the parameters of a translated one.
void MappingReplay::tell(const QString &text, const QStringList &parameters) {
    mBoxes.MsgBox(Translation::Fill(mTranslation.NLSStr(text), parameters), MessageStyle::kOkOnly, QString());
}
