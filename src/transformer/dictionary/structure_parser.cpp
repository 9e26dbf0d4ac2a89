#include "structure_parser.h"

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView kTierFileKeys[] = {"tiers"_L1, "versions"_L1, "tree"_L1};
constexpr QLatin1StringView kTierKeys[] = {"key"_L1, "caption"_L1};
constexpr QLatin1StringView kVersionKeys[] = {"level"_L1, "name"_L1};
constexpr QLatin1StringView kTreeKeys[] = {"form"_L1, "caption"_L1, "group"_L1, "child"_L1, "tiers"_L1};
constexpr QLatin1StringView kStructureFileKeys[] = {"layout"_L1, "structures"_L1};
constexpr QLatin1StringView kStructureKeys[] = {
    "name"_L1,       "label"_L1, "guide"_L1, "position"_L1,  "grids"_L1,    "parent"_L1,         "least"_L1,
    "new"_L1,        "most"_L1,  "fixed"_L1, "perParent"_L1, "commands"_L1, "navigatorLabel"_L1, "navigatorRecords"_L1,
    "recordBytes"_L1};

constexpr qsizetype kMostTiers = 32; // bits of TierMask

qint32 countIn(const JsonReader &reader, QLatin1StringView key, const TierDefinition &tier, qint32 fallback) {
    if (!reader.has(key))
        return fallback;
    const qint32 count = reader.value(key).isObject()
                             ? reader.object(key).integer(QLatin1StringView(tier.key.toLatin1()))
                             : reader.integer(key);
    if (count < 0 || count > 0xFFFF)
        reader.refuse(key, u"must lie between 0 and 65535"_s);
    return count;
}

RecordCapacity capacityOf(const LoaderNames &names, const JsonReader &reader, const RecordStructure &structure,
                          TierIndex tier) {
    if (structure.isRadio())
        return {1, 1, 1};
    const TierDefinition &definition = names.parts.tiers[tier.slot()];
    if (structure.isFlat()) {
        const RecordCapacity parent = names.parts.structures[structure.parent.slot()].in(tier);
        const qint32 each = structure.perParent;
        for (const auto key : {"least"_L1, "new"_L1, "most"_L1}) {
            if (countIn(reader, key, definition, each) != each)
                reader.refuse(key, u"must equal \"perParent\""_s);
        }
        return {parent.least * each, parent.fresh * each, parent.most * each};
    }
    if (structure.parent.isValid() && names.parts.structures[structure.parent.slot()].in(tier).most == 0)
        return {};
    const qint32 least = countIn(reader, "least"_L1, definition, 0);
    const qint32 fresh = countIn(reader, "new"_L1, definition, least);
    const qint32 most = countIn(reader, "most"_L1, definition, fresh);
    if (least > fresh || fresh > most)
        reader.refuse("most"_L1, u"\"least\", \"new\" and \"most\" must ascend"_s);
    if (structure.fixed && least != most)
        reader.refuse("fixed"_L1, u"\"least\" and \"most\" differ"_s);
    return {least, fresh, most};
}

RecordCommands commandsOf(const JsonReader &reader) {
    RecordCommands commands;
    const std::pair<QLatin1StringView, bool *> table[] = {{"add"_L1, &commands.add},
                                                          {"insert"_L1, &commands.insert},
                                                          {"repeat"_L1, &commands.repeat},
                                                          {"delete"_L1, &commands.remove}};
    for (const QString &name : reader.texts("commands"_L1)) {
        const auto *found = std::ranges::find(table, name, &std::pair<QLatin1StringView, bool *>::first);
        if (found == std::end(table))
            reader.refuse("commands"_L1, u"there is no command \"%1\""_s.arg(name));
        *found->second = true;
    }
    return commands;
}

void setParent(const LoaderNames &names, const JsonReader &reader, RecordStructure &structure) {
    if (reader.has("perParent"_L1) && !reader.has("parent"_L1))
        reader.refuse("perParent"_L1, u"needs a \"parent\""_s);
    if (!reader.has("parent"_L1))
        return;
    structure.parent = names.structure(reader, "parent"_L1, reader.text("parent"_L1));
    const RecordStructure &parent = names.parts.structures[structure.parent.slot()];
    if (parent.parent.isValid() || parent.isRadio())
        reader.refuse("parent"_L1, u"must be a structure without a parent that is not the radio"_s);
    structure.perParent = reader.integerOr("perParent"_L1, 0);
    if (reader.has("perParent"_L1) && structure.perParent < 1)
        reader.refuse("perParent"_L1, u"must be at least 1"_s);
}

void readStructure(LoaderNames &names, JsonReader reader) {
    RecordStructure structure;
    structure.name = reader.text("name"_L1);
    reader.setOwner(structure.name);
    reader.allow(kStructureKeys);
    if (names.structures.contains(structure.name))
        reader.refuse("name"_L1, u"stands twice"_s);
    structure.index = StructureIndex(qint32(names.parts.structures.size()));
    structure.label = reader.textOr("label"_L1, structure.name);
    structure.guide = reader.textOr("guide"_L1, {});
    structure.position = reader.textOr("position"_L1, {});
    structure.grids = reader.texts("grids"_L1);
    structure.fixed = reader.flag("fixed"_L1) || structure.isRadio();
    structure.commands = commandsOf(reader);
    structure.navigatorLabel = reader.textOr("navigatorLabel"_L1, {});
    structure.navigatorRecords = reader.textOr("navigatorRecords"_L1, {});
    structure.recordBytes = reader.integer("recordBytes"_L1);
    if (structure.recordBytes < 0)
        reader.refuse("recordBytes"_L1, u"must not be negative"_s);
    setParent(names, reader, structure);
    for (qint32 tier = 0; tier < qint32(names.parts.tiers.size()); ++tier)
        structure.capacity.push_back(capacityOf(names, reader, structure, TierIndex(tier)));
    names.structures.insert(structure.name, structure.index);
    if (structure.parent.isValid())
        names.parts.structures[structure.parent.slot()].children.push_back(structure.index);
    names.parts.structures.push_back(std::move(structure));
}

void readVersions(LoaderNames &names, const JsonReader &file) {
    for (const auto &entry : file.array("versions"_L1)) {
        const JsonReader reader = file.nested("versions"_L1, entry);
        reader.allow(kVersionKeys);
        names.parts.versions.push_back({reader.integer("level"_L1), reader.text("name"_L1)});
        if (names.parts.versions.back().level != qint32(names.parts.versions.size()))
            reader.refuse("level"_L1, u"levels must count from 1"_s);
    }
    if (names.parts.versions.empty())
        file.refuse("versions"_L1, u"must not be empty"_s);
}

void readTree(LoaderNames &names, const JsonReader &file) {
    for (const auto &entry : file.arrayOrEmpty("tree"_L1)) {
        JsonReader reader = file.nested("tree"_L1, entry);
        const QString form = reader.text("form"_L1);
        reader.setOwner(form);
        reader.allow(kTreeKeys);
        names.parts.tree.push_back({form, reader.text("caption"_L1), reader.flag("group"_L1), reader.flag("child"_L1),
                                    names.tierMask(reader, "tiers"_L1)});
    }
}

} // namespace

void StructureParser::readTiers(LoaderNames &names, const JsonReader &file) {
    file.allow(kTierFileKeys);
    for (const auto &entry : file.array("tiers"_L1)) {
        const JsonReader reader = file.nested("tiers"_L1, entry);
        reader.allow(kTierKeys);
        const QString key = reader.text("key"_L1);
        if (names.tiers.contains(key))
            reader.refuse("key"_L1, u"\"%1\" stands twice"_s.arg(key));
        names.tiers.insert(key, TierIndex(qint32(names.parts.tiers.size())));
        names.parts.tiers.push_back({key, reader.text("caption"_L1)});
    }
    if (names.tiers.isEmpty() || names.tiers.size() > kMostTiers)
        file.refuse("tiers"_L1, u"must hold 1 to 32 tiers"_s);
    readVersions(names, file);
    readTree(names, file);
}

void StructureParser::readStructures(LoaderNames &names, const JsonReader &file) {
    file.allow(kStructureFileKeys);
    names.parts.layoutNumber = file.integer("layout"_L1);
    for (const auto &entry : file.array("structures"_L1))
        readStructure(names, file.nested("structures"_L1, entry));
    if (std::ranges::count_if(names.parts.structures, &RecordStructure::isRadio) != 1)
        file.refuse("structures"_L1, u"exactly one, the radio, must have no \"guide\""_s);
}
