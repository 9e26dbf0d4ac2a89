#include "command_handlers.h"

#include "data_file_reader.h"
#include "field_reader.h"
#include "file_problem.h"
#include "mapping_replay.h"
#include "mapping_script.h"
#include "mapping_script_reader.h"
#include "tool_boxes.h"
#include "tool_session.h"
#include "translation.h"
#include "value_codec.h"
#include "whole_file.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>

namespace {
DataDocument readReference(ToolSession &session) {
    const QString path = QFileInfo(session.arguments().value(QStringLiteral("--reference"))).absoluteFilePath();
    try {
        return DataFileReader(session.dictionary(), path).read(WholeFile::read(path));
    } catch (const FileProblem &problem) {
        session.fail(ExitCode::kFile, problem.Description);
    }
}

// Compares fields of the replayed data with those of a reference, record by record.
class Comparison {
  public:
    Comparison(const TierData &replayed, const TierData &reference)
        : mReplayed(replayed), mReference(reference), mDictionary(replayed.dictionary()) {}

    void compare(const QString &uiid) {
        const FieldDefinition *field = mDictionary.find(uiid);
        if (field == nullptr) {
            mUnknown << uiid;
            return;
        }
        const RecordStructure &structure = mDictionary.structure(field->structure);
        if (structure.isRadio())
            compareRecord(*field, {}, uiid);
        else
            compareRecords(*field, structure);
    }
    [[nodiscard]] const QJsonArray &differences() const { return mDifferences; }
    [[nodiscard]] const QStringList &unknown() const { return mUnknown; }

  private:
    void compareRecords(const FieldDefinition &field, const RecordStructure &structure) {
        const std::vector<RecordAddress> own = mReplayed.records(structure.index);
        const std::vector<RecordAddress> other = mReference.records(structure.index);
        if (own.size() != other.size())
            add(field.id, QStringLiteral("%1 records").arg(own.size()), QStringLiteral("%1 records").arg(other.size()));
        for (const RecordAddress record : own) {
            if (mReference.exists(structure.index, record))
                compareRecord(field, record, addressOf(field, record));
        }
    }
    static QString addressOf(const FieldDefinition &field, RecordAddress record) {
        return record.parent > 0 ? QStringLiteral("%1(%2.%3)").arg(field.id).arg(record.parent).arg(record.number)
                                 : QStringLiteral("%1(%2)").arg(field.id).arg(record.number);
    }
    void compareRecord(const FieldDefinition &field, RecordAddress record, const QString &address) {
        const QString own = FieldReader(mReplayed).shown(field.index, record);
        const QString other = FieldReader(mReference).shown(field.index, record);
        if (own != other)
            add(address, own, other);
    }
    void add(const QString &address, const QString &own, const QString &other) {
        mDifferences.append(QJsonObject{{QStringLiteral("address"), address},
                                        {QStringLiteral("value"), own},
                                        {QStringLiteral("reference"), other}});
    }

    const TierData &mReplayed;
    const TierData &mReference;
    const Dictionary &mDictionary;
    QJsonArray mDifferences;
    QStringList mUnknown;
};

void print(ToolSession &session, const QJsonArray &differences) {
    if (session.wantsJson())
        session.console().json(QJsonDocument(differences));
    else
        for (const auto &entry : differences)
            session.console().line(QStringLiteral("%1: %2 / %3")
                                       .arg(entry.toObject().value(QStringLiteral("address")).toString(),
                                            entry.toObject().value(QStringLiteral("value")).toString(),
                                            entry.toObject().value(QStringLiteral("reference")).toString()));
}

// The fields that the script names are as in the reference.
bool isAsReference(ToolSession &session, const DataDocument &reference, const QStringList &fields) {
    Comparison comparison(session.state().current(), reference.data.tier(session.state().tier()));
    for (const QString &field : fields)
        comparison.compare(field);
    for (const QString &uiid : comparison.unknown())
        session.console().message(QStringLiteral("unknown UIID %1").arg(uiid));
    print(session, comparison.differences());
    return comparison.unknown().isEmpty() && comparison.differences().isEmpty();
}
} // namespace

int Commands::replay(ToolSession &session) {
    const Arguments &arguments = session.arguments();
    std::optional<DataDocument> reference;
    if (arguments.has(QStringLiteral("--reference")))
        reference = readReference(session);
    if (reference && !arguments.has(QStringLiteral("--tier")))
        session.transformer().ChangeTier(session.dictionary().tier(reference->data.currentTier()).key);
    session.selectTier();
    MappingScript script;
    ToolBoxes boxes(session.events());
    const Translation english;
    if (!MappingScriptReader(script, boxes, english).read(arguments.rest().first(), false))
        return ExitCode::kFile;
    const bool allDone = MappingReplay(session.transformer(), boxes, english).run(script.allFields);
    if (arguments.has(QStringLiteral("-o")))
        session.save(QString());
    const bool asReference = !reference || isAsReference(session, *reference, script.databaseFields);
    return asReference && allDone ? ExitCode::kDone : ExitCode::kRefused;
}
