#include "mapping_replay.h"

#include "mapping_commands.h"
#include "message_style.h"
#include "transformer.h"
#include "window_services.h"

#include <algorithm>
#include <iterator>

struct MappingReplay::Command {
    const char *code;
    // False: refused.
    bool (*run)(Transformer &transformer, MappingRecordLine &line);
    const char *doing;
    const char *field; // the middle of the message, as it is spelt for this command
};

const MappingReplay::Command MappingReplay::kCommands[] = {
    {"Add",
     [](Transformer &transformer, MappingRecordLine &line) {
         bool ok = false;
         transformer.AddRecord(line.uiid, line.gridId, line.recordNr, ok);
         return ok;
     },
     "adding", " for field "},
    {"Repeat",
     [](Transformer &transformer, MappingRecordLine &line) {
         bool ok = false;
         transformer.RepeatRecord(line.uiid, line.recordNr, line.gridId, ok);
         return ok;
     },
     "repeating", " for field "},
    {"Insert",
     [](Transformer &transformer, MappingRecordLine &line) {
         bool ok = false;
         transformer.InsertRecord(line.uiid, line.recordNr, line.gridId, ok);
         return ok;
     },
     "inserting", " for field  "},
    {"Delete",
     [](Transformer &transformer, MappingRecordLine &line) {
         bool ok = false;
         transformer.DeleteRecord(line.uiid, line.recordNr, ok);
         return ok;
     },
     "deleting", " for field "},
};

void MappingReplay::run(const QStringList &lines) {
    for (const QString &line : lines)
        runLine(line);
    mTransformer.SaveForm(mTransformer.GetCurrentTier());
}

void MappingReplay::runLine(const QString &line) {
    const QString code = MappingLine::code(line);
    const auto *const command =
        std::ranges::find_if(kCommands, [&code](const Command &row) { return code == QLatin1String(row.code); });
    if (command == std::end(kCommands))
        setValue(line);
    else
        runCommand(line, *command);
}

void MappingReplay::runCommand(const QString &line, const Command &command) {
    auto parts = MappingLine::splitCommand(line);
    if (!parts) {
        tell(QStringLiteral("Invalid line '") + line + u'\'');
        return;
    }
    const qint32 record = parts->recordNr; // adding writes back
    if (!command.run(mTransformer, *parts))
        tell(QStringLiteral("Error %1 record ").arg(QLatin1String(command.doing)) + QString::number(record) +
             QLatin1String(command.field) + parts->uiid + QStringLiteral(" in grid ") + parts->gridId);
}

void MappingReplay::setValue(const QString &line) {
    const MappingValueLine parts = MappingLine::splitUIField(line);
    if (mTransformer.GetNumberOfRecords(parts.uiid) < parts.recordNr) {
        tell(QStringLiteral("Error setting '") + parts.uiid + QStringLiteral("'.  Record ") +
             QString::number(parts.recordNr) + QStringLiteral(" for ") + parts.uiid +
             QStringLiteral(" does not exist"));
        return;
    }
    bool ok = false;
    mTransformer.SetValue(parts.uiid, parts.value, parts.recordNr, true, ok);
}

void MappingReplay::tell(const QString &text) { mBoxes.MsgBox(text, MessageStyle::kOkOnly, QString()); }
