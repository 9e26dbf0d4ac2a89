#include "field_parser.h"

#include "field_default_parser.h"
#include "item_list_parser.h"
#include "memory_place_parser.h"
#include "rule_parser.h"

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView kFileKeys[] = {"structure"_L1, "form"_L1, "fields"_L1};
constexpr QLatin1StringView kFieldKeys[] = {"id"_L1,
                                            "label"_L1,
                                            "help"_L1,
                                            "form"_L1,
                                            "alsoOn"_L1,
                                            "kind"_L1,
                                            "access"_L1,
                                            "level"_L1,
                                            "tiers"_L1,
                                            "at"_L1,
                                            "fact"_L1,
                                            "readOnly"_L1,
                                            "hidden"_L1,
                                            "default"_L1,
                                            "min"_L1,
                                            "max"_L1,
                                            "step"_L1,
                                            "decimals"_L1,
                                            "unit"_L1,
                                            "rasters"_L1,
                                            "limitsBy"_L1,
                                            "defaultBy"_L1,
                                            "mask"_L1,
                                            "length"_L1,
                                            "items"_L1,
                                            "list"_L1,
                                            "to"_L1,
                                            "none"_L1,
                                            "texts"_L1,
                                            "scope"_L1,
                                            "identityMin"_L1,
                                            "identityMax"_L1,
                                            "offer"_L1,
                                            "function"_L1,
                                            "from"_L1,
                                            "enabledWhen"_L1,
                                            "width"_L1,
                                            "follows"_L1,
                                            "followsInRow"_L1,
                                            "whenTargetGoes"_L1,
                                            "number"_L1,
                                            "resetWhenChanges"_L1,
                                            "disableWhenAbsent"_L1};

constexpr std::pair<QLatin1StringView, FieldKind> kKinds[] = {
    {"number"_L1, FieldKind::Number},     {"text"_L1, FieldKind::Text},
    {"list"_L1, FieldKind::List},         {"flag"_L1, FieldKind::Flag},
    {"choice"_L1, FieldKind::Choice},     {"reference"_L1, FieldKind::Reference},
    {"identity"_L1, FieldKind::Identity}, {"recordNumber"_L1, FieldKind::RecordNumber},
    {"derived"_L1, FieldKind::Derived}};
constexpr std::pair<QLatin1StringView, TargetGone> kTargetGone[] = {
    {"none"_L1, TargetGone::SetNone}, {"refuse"_L1, TargetGone::Refuse}, {"deleteRecord"_L1, TargetGone::DeleteRecord}};

constexpr qsizetype kLongestLabel = 24;
constexpr qint32 kFirstHelpNumber = 1001;
constexpr qint32 kAccessLevels[] = {20, 40, 60, 80};

template <class Value, std::size_t N>
Value named(const JsonReader &reader, QLatin1StringView key, const std::pair<QLatin1StringView, Value> (&table)[N]) {
    const QString name = reader.text(key);
    for (const auto &[text, value] : table) {
        if (text == name)
            return value;
    }
    reader.refuse(key, u"\"%1\" is not known"_s.arg(name));
}

void readTexts(FieldDefinition &field, const JsonReader &reader) {
    field.id = reader.text("id"_L1);
    field.label = reader.text("label"_L1);
    if (field.label.isEmpty() || field.label.size() > kLongestLabel)
        reader.refuse("label"_L1, u"must have 1 to 24 characters"_s);
    field.hidden = reader.flag("hidden"_L1);
    field.help = field.hidden ? reader.textOr("help"_L1, {}) : reader.text("help"_L1);
    field.kind = named(reader, "kind"_L1, kKinds);
}

void readVisibility(const LoaderNames &names, FieldDefinition &field, const JsonReader &reader) {
    field.access = reader.integerOr("access"_L1, field.access);
    if (std::ranges::find(kAccessLevels, field.access) == std::end(kAccessLevels))
        reader.refuse("access"_L1, u"must be 20, 40, 60 or 80"_s);
    field.level = reader.integerOr("level"_L1, 0);
    if (field.level < 0 ||
        (field.level > qint32(names.parts.versions.size()) && field.level != FieldDefinition::kNever))
        reader.refuse("level"_L1, u"there is no such version"_s);
    field.disableWhenAbsent = reader.flag("disableWhenAbsent"_L1);
    const TierMask wanted = names.tierMask(reader, "tiers"_L1);
    field.tiers = TierMask::none();
    for (qint32 place = 0; place < qint32(names.parts.tiers.size()); ++place) {
        const TierIndex tier(place);
        if (wanted.contains(tier) && names.parts.structures[field.structure.slot()].in(tier).most > 0)
            field.tiers.insert(tier);
    }
    field.fact = reader.flag("fact"_L1);
    field.readOnly =
        reader.flag("readOnly"_L1) || field.kind == FieldKind::RecordNumber || field.kind == FieldKind::Derived;
}

qint32 widestShown(const FieldDefinition &field) {
    qint32 width = field.length;
    for (const ListItem &item : field.items)
        width = std::max(width, qint32(item.text.size()));
    std::vector<qint32> ends{field.limits.minimum, field.limits.maximum};
    if (field.limitsBy) {
        for (const auto &[low, high] : field.limitsBy->limits)
            ends.insert(ends.end(), {low, high});
    }
    for (const qint32 end : ends) {
        const auto digits = qint32(QString::number(end < 0 ? -qint64(end) : end).size());
        const qint32 shown = field.decimals == 0 ? digits : std::max(digits, field.decimals + 1) + 1;
        width = std::max(width, shown + (end < 0 ? 1 : 0));
    }
    return width;
}

} // namespace

void FieldParser::readFile(const JsonReader &file) {
    file.allow(kFileKeys);
    const StructureIndex structure = mNames.structure(file, "structure"_L1, file.text("structure"_L1));
    for (const auto &entry : file.array("fields"_L1))
        readField(file, structure, file.nested("fields"_L1, entry));
}

void FieldParser::readField(const JsonReader &file, StructureIndex structure, JsonReader reader) {
    const QString id = reader.text("id"_L1);
    reader.setOwner(id);
    reader.allow(kFieldKeys);
    if (mNames.fields.contains(id))
        reader.refuse("id"_L1, u"stands twice"_s);
    FieldDefinition field;
    field.index = FieldIndex(qint32(mNames.parts.fields.size()));
    field.structure = structure;
    readTexts(field, reader);
    readVisibility(mNames, field, reader);
    field.form = field.hidden ? QString() : reader.textOr("form"_L1, file.textOr("form"_L1, {}));
    field.alsoOn = reader.texts("alsoOn"_L1);
    field.helpNumber = reader.integerOr("number"_L1, kFirstHelpNumber + field.index.place());
    field.scope = reader.textOr("scope"_L1, {});
    field.function = reader.textOr("function"_L1, {});
    readContent(field, reader);
    addToStructure(field);
    mNames.fields.insert(id, field.index);
    mPending.push_back({std::move(reader), field.index});
    mNames.parts.fields.push_back(std::move(field));
}

void FieldParser::readContent(FieldDefinition &field, const JsonReader &reader) const {
    readItems(field, reader);
    if (field.kind == FieldKind::Number) {
        readNumber(field, reader);
    } else if (field.kind == FieldKind::Identity) {
        field.limits = {reader.integer("identityMin"_L1), reader.integer("identityMax"_L1), 1, {}};
        field.offer = reader.integerOr("offer"_L1, field.offer);
        if (field.limits.minimum > field.limits.maximum)
            reader.refuse("identityMax"_L1, u"lies below \"identityMin\""_s);
    } else if (field.kind == FieldKind::Flag) {
        field.limits = {0, 1, 1, {}};
    } else if (field.kind == FieldKind::Text) {
        field.mask = reader.textOr("mask"_L1, {});
        field.length = reader.integer("length"_L1);
    } else if (field.kind == FieldKind::Derived && field.function.isEmpty()) {
        reader.refuse("function"_L1, u"is missing"_s);
    }
    if (field.hasItems() && field.items.empty())
        reader.refuse("items"_L1, u"is missing"_s);
}

void FieldParser::readNumber(FieldDefinition &field, const JsonReader &reader) const {
    field.decimals = reader.integerOr("decimals"_L1, 0);
    if (field.decimals < 0 || field.decimals > FieldDefinition::kFrequencyDecimals)
        reader.refuse("decimals"_L1, u"must lie between 0 and 6"_s);
    field.unit = reader.textOr("unit"_L1, {});
    if (!reader.has("min"_L1) || !reader.has("max"_L1))
        reader.refuse("min"_L1, u"a number needs \"min\" and \"max\""_s);
    field.limits.minimum = reader.scaled("min"_L1, reader.value("min"_L1), field.decimals);
    field.limits.maximum = reader.scaled("max"_L1, reader.value("max"_L1), field.decimals);
    if (field.limits.minimum > field.limits.maximum)
        reader.refuse("max"_L1, u"lies below \"min\""_s);
    if (reader.has("step"_L1))
        field.limits.step = reader.scaled("step"_L1, reader.value("step"_L1), field.decimals);
    for (const auto &raster : reader.arrayOrEmpty("rasters"_L1))
        field.limits.rasters.push_back(reader.scaled("rasters"_L1, raster, 0));
    if (field.limits.step < 1 || std::ranges::any_of(field.limits.rasters, [](qint32 raster) { return raster < 1; }))
        reader.refuse(reader.has("rasters"_L1) ? "rasters"_L1 : "step"_L1, u"must be above 0"_s);
}

void FieldParser::readItems(FieldDefinition &field, const JsonReader &reader) const {
    ItemList list;
    if (reader.has("list"_L1)) {
        const QString name = reader.text("list"_L1);
        if (!mNames.lists.contains(name))
            reader.refuse("list"_L1, u"there is no list \"%1\""_s.arg(name));
        list = mNames.lists.value(name);
    } else if (reader.has("items"_L1)) {
        list = ItemListParser::read(mNames, reader, reader.array("items"_L1));
    }
    if (field.scope.isEmpty() && !list.repeatedText.isEmpty())
        reader.refuse("items"_L1, u"the text \"%1\" stands twice"_s.arg(list.repeatedText));
    field.items = std::move(list.items);
    field.itemsHaveValues = list.haveValues;
}

void FieldParser::addToStructure(FieldDefinition &field) {
    RecordStructure &structure = mNames.parts.structures[field.structure.slot()];
    structure.fields.push_back(field.index);
    if (field.kind == FieldKind::Identity)
        structure.identity = field.index;
    if (field.kind == FieldKind::RecordNumber)
        structure.recordNumber = field.index;
    if (field.kind == FieldKind::RecordNumber || field.kind == FieldKind::Derived)
        return;
    const auto sameColumns = [&](FieldIndex other) {
        return mNames.definition(other).isTextual() == field.isTextual();
    };
    field.column = qint32(std::ranges::count_if(structure.stored, sameColumns));
    structure.stored.push_back(field.index);
}

void FieldParser::readTargets(const Pending &pending) {
    FieldDefinition &field = mNames.parts.fields[pending.field.slot()];
    const JsonReader &reader = pending.reader;
    if (field.kind != FieldKind::Reference)
        return;
    for (const QString &name : reader.texts("to"_L1)) {
        field.to.structures.push_back(mNames.structure(reader, "to"_L1, name));
        const RecordStructure &target = mNames.parts.structures[field.to.structures.back().slot()];
        if (target.isRadio() || (target.isScoped() && (!target.fixed || field.scope.isEmpty())))
            reader.refuse("to"_L1, u"\"%1\" needs fixed rows and a \"scope\" to be referred to"_s.arg(name));
    }
    if (field.to.structures.empty())
        reader.refuse("to"_L1, u"is missing"_s);
    field.to.hasNone = reader.flag("none"_L1);
    field.to.whenGone = field.to.hasNone ? TargetGone::SetNone : TargetGone::Refuse;
    if (reader.has("whenTargetGoes"_L1))
        field.to.whenGone = named(reader, "whenTargetGoes"_L1, kTargetGone);
    if (!reader.has("texts"_L1))
        return;
    const JsonReader texts = reader.object("texts"_L1);
    for (const StructureIndex structure : field.to.structures)
        field.to.texts.append(texts.text(QLatin1StringView(mNames.parts.structures[structure.slot()].name.toLatin1())));
}

void FieldParser::readNamedFields(const Pending &pending) {
    FieldDefinition &field = mNames.parts.fields[pending.field.slot()];
    const JsonReader &reader = pending.reader;
    FieldDefaultParser::read(mNames, field, reader);
    if (reader.has("enabledWhen"_L1))
        field.enabledWhen = RuleParser::read(mNames, reader.object("enabledWhen"_L1), field.structure);
    for (const auto &[key, target] :
         {std::pair{"resetWhenChanges"_L1, &field.resetWhenChanges}, std::pair{"follows"_L1, &field.follows}}) {
        if (!reader.has(key))
            continue;
        *target = mNames.field(reader, key, reader.text(key));
        const FieldDefinition &source = mNames.definition(*target);
        const bool fromParent = key == "follows"_L1 && reader.has("followsInRow"_L1);
        const StructureIndex home =
            fromParent ? mNames.parts.structures[field.structure.slot()].parent : field.structure;
        if (source.structure != home || !source.isStored() || !field.isStored())
            reader.refuse(key, u"\"%1\" must be stored in the same structure"_s.arg(source.id));
    }
    field.followsInRow = reader.integerOr("followsInRow"_L1, 0);
    for (const QString &id : reader.texts("from"_L1))
        field.reads.push_back(mNames.field(reader, "from"_L1, id));
    field.at = MemoryPlaceParser::read(mNames, field, reader);
    field.width = reader.integerOr("width"_L1, widestShown(field));
}

void FieldParser::resolve() {
    for (const Pending &pending : mPending)
        readTargets(pending);
    for (const Pending &pending : mPending)
        readNamedFields(pending);
    mPending.clear();
}
