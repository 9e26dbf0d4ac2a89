#include "command_handlers.h"

#include "item_lists.h"
#include "tool_session.h"
#include "value_validator.h"

#include <QJsonArray>
#include <QJsonObject>

namespace {
// The value in the form that crosses the component's boundary; ends the command with a message for one that is refused.
QVariant boundaryValue(ToolSession &session, const FieldTarget &target, const Assignment &assignment) {
    const ValueValidator validator(session.state().current());
    const FieldIndex field = target.field->index;
    const ValueResult result = assignment.stored ? validator.fromRaw(field, target.record, assignment.value)
                                                 : validator.fromShown(field, target.record, assignment.value);
    if (const auto *fault = std::get_if<ValueFault>(&result))
        session.fail(ExitCode::kRefused,
                     target.address + QStringLiteral(": ") + RefusalText::ofValue(*target.field, *fault).text());
    const StoredValue &value = std::get<StoredValue>(result);
    if (target.field->kind != FieldKind::Reference)
        return ValueCodec::boundary(*target.field, value);
    for (const FieldItem &item : ItemLists(session.state().current()).items(field, target.record)) {
        if (item.value == value.number())
            return item.text;
    }
    return assignment.value;
}
} // namespace

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
    for (const Assignment &assignment : assignments) {
        const FieldTarget target = session.target(assignment.address);
        session.selectParent(target.field->structure, target.record);
        const QVariant value = boundaryValue(session, target, assignment);
        bool ok = false;
        session.transformer().SetValue(target.field->id, value, target.record.number, true, ok);
        if (!ok)
            return ExitCode::kRefused;
    }
    session.save(words.first());
    return ExitCode::kDone;
}
