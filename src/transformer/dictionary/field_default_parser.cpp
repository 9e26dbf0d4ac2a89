#include "field_default_parser.h"

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView kLimitsKeys[] = {"field"_L1, "limits"_L1, "defaults"_L1};
constexpr QLatin1StringView kDefaultByKeys[] = {"field"_L1, "values"_L1};

void checkNumber(const FieldDefinition &field, const JsonReader &reader, QLatin1StringView key, qint32 value,
                 qint32 minimum, qint32 maximum) {
    if (value < minimum || value > maximum)
        reader.refuse(key, u"lies outside the limits"_s);
    const NumberLimits &limits = field.limits;
    const bool onRaster =
        limits.rasters.empty()
            ? (value - minimum) % limits.step == 0
            : std::ranges::any_of(limits.rasters, [value](qint32 raster) { return value % raster == 0; });
    if (!onRaster)
        reader.refuse(key, u"lies off the step"_s);
}

// A default of any kind but text, as it stands in the file.
qint32 readValue(const FieldDefinition &field, const JsonReader &reader, QLatin1StringView key,
                 const QJsonValue &value) {
    if (field.hasItems()) {
        const ListItem *item = value.isString() ? field.itemByText(value.toString()) : nullptr;
        if (item == nullptr)
            reader.refuse(key, u"must be the text of an item"_s);
        return item->value;
    }
    if (field.kind == FieldKind::Reference && value.isString()) {
        if (!field.to.hasNone || value.toString() != "None"_L1)
            reader.refuse(key, u"must be a number, or \"None\" where it is an item"_s);
        return 0;
    }
    const qint32 number = reader.scaled(key, value, field.decimals);
    if (field.kind == FieldKind::Flag && (number < 0 || number > 1))
        reader.refuse(key, u"must be 0 or 1"_s);
    if (field.kind == FieldKind::Reference && (number < 1 || field.to.isMixed()))
        reader.refuse(key, u"must be the identity of a record"_s);
    return number;
}

void readText(FieldDefinition &field, const JsonReader &reader) {
    field.defaultText = reader.textOr("default"_L1, {});
    if (field.defaultText.size() > field.length)
        reader.refuse("default"_L1, u"is too long"_s);
    for (const QChar letter : field.defaultText) {
        if (!field.mask.isEmpty() && !field.mask.contains(letter))
            reader.refuse("default"_L1, u"\"%1\" is not in the mask"_s.arg(letter));
    }
}

FieldIndex readTableField(const LoaderNames &names, const FieldDefinition &field, const JsonReader &reader) {
    const FieldIndex by = names.field(reader, "field"_L1, reader.text("field"_L1));
    const FieldDefinition &source = names.definition(by);
    const bool near = source.structure == field.structure || names.parts.structures[source.structure.slot()].isRadio();
    if (!near || source.isTextual() || !source.isStored())
        reader.refuse("field"_L1, u"must be a number or list of the radio or of the same structure"_s);
    return by;
}

void readLimitsBy(const LoaderNames &names, FieldDefinition &field, const JsonReader &owner) {
    const JsonReader reader = owner.object("limitsBy"_L1);
    reader.allow(kLimitsKeys);
    LimitsTable table;
    table.field = readTableField(names, field, reader);
    for (const auto &entry : reader.array("limits"_L1)) {
        const QJsonArray pair = entry.toArray();
        if (pair.size() != 2)
            reader.refuse("limits"_L1, u"must hold pairs"_s);
        table.limits.emplace_back(reader.scaled("limits"_L1, pair[0], field.decimals),
                                  reader.scaled("limits"_L1, pair[1], field.decimals));
        if (table.limits.back().first > table.limits.back().second)
            reader.refuse("limits"_L1, u"must ascend"_s);
    }
    const FieldDefinition &by = names.definition(table.field);
    if (table.limits.empty() || (by.hasItems() && by.items.size() != table.limits.size()))
        reader.refuse("limits"_L1, u"needs a pair for each item of \"%1\""_s.arg(by.id));
    for (const auto &value : reader.arrayOrEmpty("defaults"_L1)) {
        field.defaultBy.values.push_back(readValue(field, reader, "defaults"_L1, value));
        if (field.defaultBy.values.size() > table.limits.size())
            reader.refuse("defaults"_L1, u"must be as many as the limits"_s);
        const auto [low, high] = table.limits[field.defaultBy.values.size() - 1];
        checkNumber(field, reader, "defaults"_L1, field.defaultBy.values.back(), low, high);
    }
    if (!field.defaultBy.values.empty()) {
        if (field.defaultBy.values.size() != table.limits.size())
            reader.refuse("defaults"_L1, u"must be as many as the limits"_s);
        field.defaultBy.field = table.field;
    }
    field.limitsBy = std::move(table);
}

void readDefaultBy(const LoaderNames &names, FieldDefinition &field, const JsonReader &owner) {
    const JsonReader reader = owner.object("defaultBy"_L1);
    reader.allow(kDefaultByKeys);
    field.defaultBy.field = readTableField(names, field, reader);
    for (const auto &value : reader.array("values"_L1)) {
        field.defaultBy.values.push_back(readValue(field, reader, "values"_L1, value));
        if (field.kind == FieldKind::Number)
            checkNumber(field, reader, "values"_L1, field.defaultBy.values.back(), field.limits.minimum,
                        field.limits.maximum);
    }
    if (field.defaultBy.values.empty())
        reader.refuse("values"_L1, u"must not be empty"_s);
}

} // namespace

void FieldDefaultParser::read(const LoaderNames &names, FieldDefinition &field, const JsonReader &reader) {
    if (field.kind == FieldKind::Text) {
        readText(field, reader);
        return;
    }
    if (field.kind == FieldKind::RecordNumber || field.kind == FieldKind::Derived)
        return;
    if (field.kind == FieldKind::Identity) {
        field.defaultNextFree = true;
        field.defaultNumber = field.limits.minimum;
        if (reader.has("default"_L1) && reader.text("default"_L1) != "next free"_L1)
            reader.refuse("default"_L1, u"an identity has \"next free\""_s);
        return;
    }
    if (!reader.has("default"_L1))
        reader.refuse("default"_L1, u"is missing"_s);
    field.defaultNextFree = field.kind == FieldKind::Choice && !field.scope.isEmpty() &&
                            reader.value("default"_L1) == QJsonValue(u"next free"_s);
    if (field.defaultNextFree) {
        field.defaultNumber = field.items.front().value;
        return;
    }
    field.defaultNumber = readValue(field, reader, "default"_L1, reader.value("default"_L1));
    if (field.kind == FieldKind::Number)
        checkNumber(field, reader, "default"_L1, field.defaultNumber, field.limits.minimum, field.limits.maximum);
    if (reader.has("limitsBy"_L1))
        readLimitsBy(names, field, reader);
    if (reader.has("defaultBy"_L1))
        readDefaultBy(names, field, reader);
}
