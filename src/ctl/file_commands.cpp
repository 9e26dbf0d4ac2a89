#include "command_handlers.h"

#include "data_file_reader.h"
#include "field_defaults.h"
#include "field_reader.h"
#include "file_problem.h"
#include "final_checks.h"
#include "form_session.h"
#include "restore_points.h"
#include "tool_session.h"
#include "whole_file.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>

namespace {
// The tiers that a file stores: the current one and those that differ from their defaults.
std::vector<TierIndex> storedTiers(const DataSet &data) {
    std::vector<TierIndex> tiers;
    for (qint32 place = 0; place < qint32(data.dictionary().tiers().size()); ++place) {
        const TierIndex tier(place);
        if (tier == data.currentTier() || FieldDefaults(data.tier(tier)).differs())
            tiers.push_back(tier);
    }
    return tiers;
}

QString recordText(RecordAddress record) {
    if (record.number == 0)
        return {};
    return record.parent > 0 ? QStringLiteral("%1.%2").arg(record.parent).arg(record.number)
                             : QString::number(record.number);
}

// One line of check or diff.
struct Entry {
    QString tier;
    QString form;
    QString record;
    QString label;
    QString severity;
    QString text;

    [[nodiscard]] QString line() const {
        const QString where = record.isEmpty() ? QString() : QStringLiteral(" ") + record;
        const QString mark = severity == QStringLiteral("warning") ? QStringLiteral("warning: ") : QString();
        return QStringLiteral("%1: %2%3: %4: %5%6").arg(tier, form, where, label, mark, text);
    }
    [[nodiscard]] QJsonObject json() const {
        return {{QStringLiteral("tier"), tier},         {QStringLiteral("form"), form},
                {QStringLiteral("record"), record},     {QStringLiteral("label"), label},
                {QStringLiteral("severity"), severity}, {QStringLiteral("text"), text}};
    }
};

void print(ToolSession &session, const std::vector<Entry> &entries) {
    QJsonArray array;
    for (const Entry &entry : entries) {
        array.append(entry.json());
        if (!session.wantsJson())
            session.console().line(entry.line());
    }
    if (session.wantsJson())
        session.console().json(QJsonDocument(array));
}

DataDocument readDocument(ToolSession &session, const QString &fileName) {
    try {
        const QString path = QFileInfo(fileName).absoluteFilePath();
        return DataFileReader(session.dictionary(), path).read(WholeFile::read(path));
    } catch (const FileProblem &problem) {
        session.fail(ExitCode::kFile, problem.Description);
    }
}

class Difference {
  public:
    Difference(const TierData &left, const TierData &right)
        : mLeft(left), mRight(right), mDictionary(left.dictionary()) {}

    [[nodiscard]] std::vector<Entry> entries() {
        for (const RecordStructure &structure : mDictionary.structures()) {
            const std::vector<RecordAddress> left = recordsOf(mLeft, structure);
            const std::vector<RecordAddress> right = recordsOf(mRight, structure);
            if (left.size() != right.size())
                add(structure, {}, structure.label,
                    QStringLiteral("%1 records / %2 records").arg(left.size()).arg(right.size()));
            for (const RecordAddress record : left) {
                if (mRight.exists(structure.index, record))
                    compare(structure, record);
            }
        }
        return mEntries;
    }

  private:
    [[nodiscard]] static std::vector<RecordAddress> recordsOf(const TierData &data, const RecordStructure &structure) {
        return structure.isRadio() ? std::vector<RecordAddress>{{}} : data.records(structure.index);
    }
    void compare(const RecordStructure &structure, RecordAddress record) {
        for (const FieldIndex field : structure.stored) {
            if (mLeft.value(field, record) != mRight.value(field, record))
                add(structure, record, mDictionary.field(field).label,
                    FieldReader(mLeft).shown(field, record) + QStringLiteral(" / ") +
                        FieldReader(mRight).shown(field, record),
                    &mDictionary.field(field));
        }
    }
    void add(const RecordStructure &structure, RecordAddress record, const QString &label, const QString &text,
             const FieldDefinition *field = nullptr) {
        mEntries.push_back({mDictionary.tier(mLeft.tier()).key,
                            field == nullptr ? structure.label : Findings::formCaption(mDictionary, *field),
                            recordText(record), label, QString(), text});
    }

    const TierData &mLeft;
    const TierData &mRight;
    const Dictionary &mDictionary;
    std::vector<Entry> mEntries;
};
} // namespace

int Commands::newFile(ToolSession &session) {
    const QString out = session.requiredOutput();
    const QString version = session.arguments().value(QStringLiteral("--version"));
    const qint32 index = version.isEmpty() ? 0 : version.toInt();
    if (!version.isEmpty() && (index < 1 || index > qint32(session.dictionary().versions().size())))
        throw UsageError(QStringLiteral("unknown version %1").arg(version));
    session.selectTier();
    bool saved = false;
    session.transformer().SaveFile(out, QString(), index, saved);
    return saved ? ExitCode::kDone : ExitCode::kFile;
}

int Commands::info(ToolSession &session) {
    const QString path = session.arguments().rest().first();
    try {
        const DataFileHeader header = DataFileReader(session.dictionary(), path).readHeader(WholeFile::read(path));
        const QString date = QFileInfo(path).lastModified().toString(QStringLiteral("dd/MM/yyyy hh:mm:ss"));
        if (session.wantsJson()) {
            session.console().json(
                QJsonDocument(QJsonObject{{QStringLiteral("date"), date},
                                          {QStringLiteral("saved"), header.date},
                                          {QStringLiteral("tier"), header.tier},
                                          {QStringLiteral("radioModel"), header.radioModel},
                                          {QStringLiteral("databaseVersion"), header.databaseVersion},
                                          {QStringLiteral("applicationVersion"), header.applicationVersion},
                                          {QStringLiteral("networks"), header.networks},
                                          {QStringLiteral("comment"), header.comment}}));
            return ExitCode::kDone;
        }
        session.console().line(QStringLiteral("Date = ") + date);
        session.console().line(QStringLiteral("Radio Model = ") + header.radioModel);
        session.console().line(QStringLiteral("Database Version = ") + header.databaseVersion);
        if (!header.applicationVersion.isEmpty())
            session.console().line(QStringLiteral("Application Version = ") + header.applicationVersion);
        if (header.networks != 0)
            session.console().line(QStringLiteral("Networks = %1").arg(header.networks));
        return ExitCode::kDone;
    } catch (const FileProblem &problem) {
        session.fail(ExitCode::kFile, problem.Description);
    }
}

int Commands::check(ToolSession &session) {
    const DataDocument document = readDocument(session, session.arguments().rest().first());
    std::vector<Entry> entries;
    bool invalid = false;
    for (const TierIndex tier : storedTiers(document.data)) {
        for (const Finding &finding : FinalChecks(document.data.tier(tier)).run()) {
            const FieldDefinition &field = session.dictionary().field(finding.field);
            const bool isError = finding.severity == Finding::Severity::Error;
            invalid = invalid || isError;
            entries.push_back({session.dictionary().tier(tier).key, Findings::formCaption(session.dictionary(), field),
                               recordText(finding.record), field.label,
                               isError ? QStringLiteral("error") : QStringLiteral("warning"), finding.message.text()});
        }
    }
    print(session, entries);
    return invalid ? ExitCode::kRefused : ExitCode::kDone;
}

int Commands::diff(ToolSession &session) {
    const DataDocument left = readDocument(session, session.arguments().rest()[0]);
    const DataDocument right = readDocument(session, session.arguments().rest()[1]);
    std::vector<Entry> entries;
    for (qint32 place = 0; place < qint32(session.dictionary().tiers().size()); ++place) {
        const TierIndex tier(place);
        const std::vector<Entry> found = Difference(left.data.tier(tier), right.data.tier(tier)).entries();
        entries.insert(entries.end(), found.begin(), found.end());
    }
    print(session, entries);
    return entries.empty() ? ExitCode::kDone : ExitCode::kRefused;
}

int Commands::squirt(ToolSession &session) {
    const QString out = session.requiredOutput();
    if (QFileInfo(out).suffix().compare(QStringLiteral("sqt"), Qt::CaseInsensitive) != 0)
        throw UsageError(QStringLiteral("the name of a squirt file ends in .sqt"));
    session.open(session.arguments().rest().first());
    if (!session.transformer().FinalValidate())
        return ExitCode::kRefused;
    bool saved = false;
    session.transformer().SaveFile(out, QString(), 0, saved);
    return saved ? ExitCode::kDone : ExitCode::kFile;
}

int Commands::restorePoints(ToolSession &session) {
    const RestorePoints points(session.state().places.restoreFolder);
    const QStringList serials =
        session.arguments().rest().isEmpty() ? points.serialNumbers() : session.arguments().rest();
    QJsonArray array;
    for (const QString &serial : serials) {
        for (const QString &path : points.of(serial)) {
            array.append(QJsonObject{{QStringLiteral("serial"), serial}, {QStringLiteral("file"), path}});
            if (!session.wantsJson())
                session.console().line(serial + u' ' + path);
        }
    }
    if (session.wantsJson())
        session.console().json(QJsonDocument(array));
    return ExitCode::kDone;
}
