#include "form_definition_reader.h"

#include "control_classes.h"
#include "run_time_error.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <cmath>

namespace {
const QString kClass = QStringLiteral("class");
const QString kName = QStringLiteral("name");
const QString kControls = QStringLiteral("controls");
const QString kCaption = QStringLiteral("Caption");
const QString kForm = QStringLiteral("form");
const QString kPages = QStringLiteral("pages");
const QString kEnabler = QStringLiteral("ctlFormEnabler1");
const QString kTabControl = QStringLiteral("SSTab1");
const QStringList kStructure{kClass, kName, kControls};

std::optional<QVariant> converted(PropertyType type, const QJsonValue &value) {
    const double number = value.toDouble();
    switch (type) {
    case PropertyType::Text:
        return value.isString() ? std::optional<QVariant>(value.toString()) : std::nullopt;
    case PropertyType::Flag:
        return value.isBool() ? std::optional<QVariant>(value.toBool()) : std::nullopt;
    case PropertyType::Whole:
        return value.isDouble() && number == std::floor(number) && std::abs(number) < 2147483648.0
                   ? std::optional<QVariant>(int(number))
                   : std::nullopt;
    case PropertyType::Factor:
        return value.isDouble() && number >= 0.0 && number <= 1.0 ? std::optional<QVariant>(number) : std::nullopt;
    }
    return std::nullopt;
}
} // namespace

FormDefinitionReader::FormDefinitionReader(QString fileName) : mFileName(std::move(fileName)) {}

FormDefinition FormDefinitionReader::read(const QByteArray &text) {
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    if (!document.isObject())
        refuse({}, QStringLiteral("no JSON object at byte %1: %2").arg(error.offset).arg(error.errorString()));
    const QJsonObject object = document.object();
    refuseUnknownKeys({}, object, {kForm, kEnabler, kPages, kControls});

    mNames.clear();
    FormDefinition form;
    form.name = object[kForm].toString();
    if (form.name + QStringLiteral(".json") != mFileName)
        refuse({}, QStringLiteral("the form is called \"%1\"").arg(form.name));
    form.enabler = {kEnabler, QStringLiteral("ctlFormEnabler"), {}, {}};
    form.tabControl = {kTabControl, QStringLiteral("SSTab"), {}, {}};
    takeName({}, kEnabler);
    takeName({}, kTabControl);
    readProperties(form.enabler, object[kEnabler].toObject());
    for (const auto &page : object[kPages].toArray())
        form.pages.push_back(readPage(page.toObject()));
    form.controls = readControls({}, object[kControls]);
    checkReferences(form);
    return form;
}

void FormDefinitionReader::refuse(const QString &where, const QString &what) const {
    const QString place = where.isEmpty() ? mFileName : mFileName + QStringLiteral(": ") + where;
    throw RunTimeError(ErrorNumber::kBadArgument, QStringLiteral("FormDefinitionReader"),
                       place + QStringLiteral(": ") + what);
}

void FormDefinitionReader::refuseUnknownKeys(const QString &where, const QJsonObject &object,
                                             const QStringList &known) const {
    for (const QString &key : object.keys()) {
        if (!known.contains(key))
            refuse(where, QStringLiteral("unknown key \"%1\"").arg(key));
    }
}

PageDefinition FormDefinitionReader::readPage(const QJsonObject &object) {
    PageDefinition page{object[kCaption].toString(), {}};
    const QString where = QStringLiteral("page \"%1\"").arg(page.caption);
    refuseUnknownKeys(where, object, {kCaption, kControls});
    if (page.caption.isEmpty())
        refuse(where, QStringLiteral("no \"Caption\""));
    page.controls = readControls(where, object[kControls]);
    return page;
}

std::vector<ControlDefinition> FormDefinitionReader::readControls(const QString &where, const QJsonValue &list) {
    if (!list.isUndefined() && !list.isArray())
        refuse(where, QStringLiteral("\"controls\" is no list"));
    std::vector<ControlDefinition> controls;
    for (const auto &entry : list.toArray())
        controls.push_back(readControl(where, entry.toObject()));
    return controls;
}

ControlDefinition FormDefinitionReader::readControl(const QString &where, const QJsonObject &object) {
    ControlDefinition control{object[kName].toString(), object[kClass].toString(), {}, {}};
    takeName(where, control.name);
    const ControlClass *found = ControlClasses::find(control.typeName);
    if (found == nullptr || control.typeName == u"SSTab" || control.typeName == u"ctlFormEnabler")
        refuse(control.name, QStringLiteral("unknown class \"%1\"").arg(control.typeName));
    readProperties(control, object);
    if (object.contains(kControls) && !found->holdsControls)
        refuse(control.name, QStringLiteral("a %1 holds no controls").arg(control.typeName));
    control.controls = readControls(control.name, object[kControls]);
    return control;
}

void FormDefinitionReader::readProperties(ControlDefinition &control, const QJsonObject &object) const {
    for (const QString &key : object.keys()) {
        if (!kStructure.contains(key))
            control.properties.insert(key, readValue(control, key, object[key]));
    }
    // Only now: the default of some keys follows from another key.
    for (const QString &key : control.properties.keys()) {
        ControlDefinition without = control;
        without.properties.remove(key);
        if (without.property(key) == control.properties[key])
            refuse(control.name, QStringLiteral("\"%1\" equals its default and is to be left out").arg(key));
    }
}

QVariant FormDefinitionReader::readValue(const ControlDefinition &control, const QString &key,
                                         const QJsonValue &value) const {
    const PropertyRule *rule = ControlClasses::find(control.typeName)->property(key);
    if (rule == nullptr)
        refuse(control.name, QStringLiteral("unknown key \"%1\"").arg(key));
    const std::optional<QVariant> result = converted(rule->type, value);
    if (!result)
        refuse(control.name, QStringLiteral("\"%1\" has a value that it cannot take").arg(key));
    return *result;
}

void FormDefinitionReader::takeName(const QString &where, const QString &name) {
    if (name.isEmpty())
        refuse(where, QStringLiteral("a control without a name"));
    if (!mNames.insert(name.toLower()).second)
        refuse(name, QStringLiteral("the name stands twice"));
}

void FormDefinitionReader::checkReferences(const FormDefinition &form) const {
    const std::vector<PlacedControl> controls = form.placedControls();
    const auto isOfType = [&](const QString &name, QStringView type) {
        return std::ranges::any_of(controls, [&](const PlacedControl &placed) {
            return placed.control->name == name && placed.control->typeName == type;
        });
    };
    for (const PlacedControl &placed : controls) {
        const QVariantMap &properties = placed.control->properties;
        const QString grid = properties.value(QStringLiteral("GridControl")).toString();
        if (!grid.isEmpty() && !isOfType(grid, u"fldGridField"))
            refuse(placed.control->name, QStringLiteral("\"GridControl\" names no grid of the form"));
        const QString inner = properties.value(QStringLiteral("SubNavigator")).toString();
        if (!inner.isEmpty() && !isOfType(inner, u"fldPageNavigator"))
            refuse(placed.control->name, QStringLiteral("\"SubNavigator\" names no navigator of the form"));
    }
}
