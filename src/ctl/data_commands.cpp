#include "command_handlers.h"

#include "field_reader.h"
#include "field_setter.h"
#include "tool_session.h"
#include "value_codec.h"

#include <QJsonArray>
#include <QJsonObject>

int Commands::get(ToolSession &session) {
    const Arguments &arguments = session.arguments();
    session.open(arguments.rest().first());
    const FieldReader reader(session.state().current());
    QJsonArray array;
    QStringList lines;
    for (const QString &word : arguments.rest().sliced(1)) {
        const FieldTarget target = session.target(Address::parse(word));
        const std::optional<StoredValue> stored = reader.value(target.field->index, target.record);
        const bool raw = arguments.has(QStringLiteral("--raw"));
        const QString value =
            raw ? ValueCodec::raw(stored.value_or(StoredValue())) : reader.shown(target.field->index, target.record);
        lines.append(value);
        array.append(QJsonObject{{QStringLiteral("address"), target.address}, {QStringLiteral("value"), value}});
    }
    if (session.wantsJson()) {
        session.console().json(QJsonDocument(array));
        return ExitCode::kDone;
    }
    for (const QString &line : lines)
        session.console().line(line);
    return ExitCode::kDone;
}

int Commands::set(ToolSession &session) {
    const QStringList words = session.arguments().rest();
    QList<Assignment> assignments;
    for (const QString &word : words.sliced(1))
        assignments.append(Assignment::parse(word));
    session.open(words.first());
    FieldSetter setter(session);
    for (const Assignment &assignment : assignments) {
        const FieldTarget target = session.target(assignment.address);
        const ValueForm form = assignment.stored ? ValueForm::Stored : ValueForm::Shown;
        const QString refusal = setter.set(*target.field, target.record, assignment.value, form).refusal;
        if (!refusal.isEmpty())
            session.fail(ExitCode::kRefused, target.address + QStringLiteral(": ") + refusal);
    }
    session.save(words.first());
    return ExitCode::kDone;
}
