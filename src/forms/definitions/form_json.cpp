#include "form_json.h"

#include "form_catalogue.h"

namespace {
QJsonObject ofControl(const PlacedControl &placed) {
    const ControlDefinition &control = *placed.control;
    const QString id = control.id();
    return {{QStringLiteral("name"), control.name},
            {QStringLiteral("type"), control.typeName},
            {QStringLiteral("id"), id.isEmpty() ? QJsonValue(QJsonValue::Null) : QJsonValue(id)},
            {QStringLiteral("parent"),
             placed.parent == nullptr ? QJsonValue(QJsonValue::Null) : QJsonValue(placed.parent->name)},
            {QStringLiteral("properties"), QJsonObject::fromVariantMap(control.properties)}};
}

QJsonObject ofPage(const PageDefinition &page) {
    QJsonArray names;
    for (const ControlDefinition &control : page.controls)
        names.append(control.name);
    return {{QStringLiteral("caption"), page.caption}, {QStringLiteral("controls"), names}};
}
} // namespace

namespace FormJson {
QJsonObject ofForm(const FormDefinition &form) {
    QJsonArray pages;
    for (const PageDefinition &page : form.pages)
        pages.append(ofPage(page));
    QJsonArray controls;
    for (const PlacedControl &placed : form.placedControls())
        controls.append(ofControl(placed));
    return {{QStringLiteral("name"), form.name},
            {QStringLiteral("helpId"), form.helpId()},
            {QStringLiteral("pages"), pages},
            {QStringLiteral("controls"), controls}};
}

QJsonArray ofAllForms(FormCatalogue &catalogue) {
    QJsonArray forms;
    for (const QString &name : catalogue.names())
        forms.append(ofForm(catalogue.form(name)));
    return forms;
}
} // namespace FormJson
