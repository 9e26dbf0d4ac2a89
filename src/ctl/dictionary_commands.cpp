#include "command_handlers.h"

#include "form_catalogue.h"
#include "form_json.h"
#include "tool_session.h"
#include "value_codec.h"

#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace {
constexpr std::array<std::pair<FieldKind, const char *>, 9> kKindNames = {{
    {FieldKind::Number, "number"},
    {FieldKind::Text, "text"},
    {FieldKind::List, "list"},
    {FieldKind::Flag, "flag"},
    {FieldKind::Choice, "choice"},
    {FieldKind::Reference, "reference"},
    {FieldKind::Identity, "identity"},
    {FieldKind::RecordNumber, "recordNumber"},
    {FieldKind::Derived, "derived"},
}};

QString kindName(FieldKind kind) {
    const auto *found = std::ranges::find(kKindNames, kind, &std::pair<FieldKind, const char *>::first);
    return QString::fromLatin1(found->second);
}

QJsonValue defaultOf(const FieldDefinition &field) {
    if (!field.isStored())
        return QJsonValue::Null;
    if (field.isTextual())
        return field.defaultText;
    return field.defaultNextFree ? QStringLiteral("next free") : ValueCodec::shown(field, field.defaultNumber);
}

QJsonValue inUnits(const FieldDefinition &field, qint32 stored) {
    return field.isNumeric() ? QJsonValue(stored / std::pow(10.0, field.decimals)) : QJsonValue(QJsonValue::Null);
}

QJsonArray listOf(const FieldDefinition &field) {
    QJsonArray texts;
    for (const ListItem &item : field.items)
        texts.append(item.text);
    return texts;
}

QJsonObject jsonOf(const Dictionary &dictionary, const FieldDefinition &field) {
    const NumberLimits &limits = field.limits;
    const qint32 step = limits.rasters.empty() ? limits.step : *std::ranges::min_element(limits.rasters);
    return {{QStringLiteral("id"), field.id},
            {QStringLiteral("label"), field.label},
            {QStringLiteral("help"), field.help},
            {QStringLiteral("kind"), kindName(field.kind)},
            {QStringLiteral("record"), dictionary.structure(field.structure).name},
            {QStringLiteral("form"), field.form},
            {QStringLiteral("default"), defaultOf(field)},
            {QStringLiteral("min"), inUnits(field, limits.minimum)},
            {QStringLiteral("max"), inUnits(field, limits.maximum)},
            {QStringLiteral("step"), inUnits(field, step)},
            {QStringLiteral("unit"), field.unit},
            {QStringLiteral("list"), listOf(field)},
            {QStringLiteral("level"), field.access},
            {QStringLiteral("version"), field.level}};
}
} // namespace

int Commands::fields(ToolSession &session) {
    QJsonArray array;
    for (const FieldDefinition &field : session.dictionary().fields())
        array.append(jsonOf(session.dictionary(), field));
    session.console().json(QJsonDocument(array));
    return ExitCode::kDone;
}

int Commands::forms(ToolSession &session) {
    FormCatalogue catalogue;
    session.console().json(QJsonDocument(FormJson::ofAllForms(catalogue)));
    return ExitCode::kDone;
}
