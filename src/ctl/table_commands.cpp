#include "command_handlers.h"

#include "csv_text.h"
#include "field_reader.h"
#include "rule_evaluator.h"
#include "table_import.h"
#include "tool_session.h"
#include "whole_file.h"

#include <QJsonArray>
#include <QJsonObject>

namespace {
const RecordStructure &requiredStructure(const ToolSession &session) {
    if (!session.arguments().has(QStringLiteral("--record")))
        throw UsageError(QStringLiteral("name the records with --record GUIDE"));
    return session.structure(session.arguments().value(QStringLiteral("--record")));
}

// What can be set, and the names of fixed rows.
std::vector<const FieldDefinition *> exportedFields(ToolSession &session, const RecordStructure &structure) {
    const RuleEvaluator rules(session.state().current());
    std::vector<const FieldDefinition *> fields;
    for (const FieldIndex index : structure.fields) {
        const FieldDefinition &field = session.dictionary().field(index);
        const bool isMeant = field.kind == FieldKind::RecordNumber || (field.isStored() && !field.readOnly);
        if (isMeant && rules.hasField(index))
            fields.push_back(&field);
    }
    return fields;
}

class RecordExport {
  public:
    RecordExport(ToolSession &session, const RecordStructure &structure)
        : mSession(session), mStructure(structure), mFields(exportedFields(session, structure)),
          mReader(session.state().current()), mRecords(session.state().current().records(structure.index)) {}

    void printTable() const {
        std::vector<QStringList> rows{heads()};
        for (const RecordAddress record : mRecords) {
            QStringList cells;
            if (mStructure.isScoped())
                cells.append(QString::number(record.parent));
            for (const FieldDefinition *field : mFields)
                cells.append(mReader.shown(field->index, record));
            rows.push_back(cells);
        }
        mSession.console().text(CsvText::write(rows));
    }

    void printJson() const {
        QJsonArray array;
        for (const RecordAddress record : mRecords) {
            QJsonObject values;
            for (const FieldDefinition *field : mFields)
                values.insert(field->id, mReader.shown(field->index, record));
            QJsonObject object{{QStringLiteral("record"), record.number}, {QStringLiteral("values"), values}};
            if (mStructure.isScoped())
                object.insert(QStringLiteral("parent"), record.parent);
            array.append(object);
        }
        mSession.console().json(QJsonDocument(array));
    }

  private:
    [[nodiscard]] QStringList heads() const {
        QStringList heads;
        if (mStructure.isScoped())
            heads.append(mSession.dictionary().structure(mStructure.parent).position);
        for (const FieldDefinition *field : mFields)
            heads.append(field->id);
        return heads;
    }

    ToolSession &mSession;
    const RecordStructure &mStructure;
    std::vector<const FieldDefinition *> mFields;
    FieldReader mReader;
    std::vector<RecordAddress> mRecords;
};

void list(ToolSession &session, const std::vector<RefusedCell> &refused) {
    for (const RefusedCell &cell : refused) {
        const QString column = cell.column.isEmpty() ? QString() : QStringLiteral(", ") + cell.column;
        session.console().message(QStringLiteral("row %1%2: %3").arg(cell.row).arg(column, cell.reason));
    }
}
} // namespace

int Commands::exportRecords(ToolSession &session) {
    const RecordStructure &structure = requiredStructure(session);
    session.open(session.arguments().rest().first());
    const RecordExport table(session, structure);
    if (session.wantsJson())
        table.printJson();
    else
        table.printTable();
    return ExitCode::kDone;
}

int Commands::importRecords(ToolSession &session) {
    const RecordStructure &structure = requiredStructure(session);
    const QStringList words = session.arguments().rest();
    const std::vector<QStringList> rows = CsvText::read(words[1], WholeFile::read(words[1]));
    if (rows.empty())
        session.fail(ExitCode::kFile, QStringLiteral("The file %1 has no line of column heads.").arg(words[1]));
    session.open(words.first());
    TableImport import(session, structure, ImportColumns::of(session.dictionary(), structure, rows.front()), rows);
    std::set<qint32> leftOut;
    std::vector<RefusedCell> refused = import.run(leftOut);
    list(session, refused);
    const bool isDone = refused.empty();
    if (!isDone && !session.arguments().has(QStringLiteral("--partial"))) {
        session.console().message(QStringLiteral("Nothing was imported."));
        return ExitCode::kRefused;
    }
    // A row goes in whole or not at all; others may have needed it.
    while (!refused.empty()) {
        for (const RefusedCell &cell : refused)
            leftOut.insert(cell.row);
        session.open(words.first());
        refused = import.run(leftOut);
        list(session, refused);
    }
    session.save(words.first());
    if (isDone)
        return ExitCode::kDone;
    session.console().message(QStringLiteral("%1 of %2 rows were left out.").arg(leftOut.size()).arg(rows.size() - 1));
    return ExitCode::kRefused;
}
