#include "dictionary.h"

#include <algorithm>

Dictionary::Dictionary(Parts parts)
    : mParts(std::move(parts)), mDependencies(mParts.fields, mParts.structures),
      mLayout(mParts.structures, qint32(mParts.tiers.size()), mParts.layoutNumber) {
    indexStructures();
    indexFields();
}

void Dictionary::indexStructures() {
    for (const RecordStructure &structure : mParts.structures) {
        if (structure.isRadio())
            mRadio = structure.index;
        mStructureByName.insert(structure.name, structure.index);
        if (!structure.guide.isEmpty())
            mStructureByUiid.insert(structure.guide, structure.index);
        if (!structure.position.isEmpty()) {
            mStructureByPosition.insert(structure.position, structure.index);
            mStructureByUiid.insert(structure.position, structure.index);
        }
        for (const QString &grid : structure.grids)
            mStructureByUiid.insert(grid, structure.index);
    }
}

void Dictionary::indexFields() {
    mFieldById.reserve(qsizetype(mParts.fields.size()));
    for (const FieldDefinition &field : mParts.fields) {
        mFieldById.insert(field.id, field.index);
        mStructureByUiid.insert(field.id, field.structure);
        if (!field.form.isEmpty())
            mFormFields[field.form].push_back(field.index);
    }
    for (const FieldDefinition &field : mParts.fields) {
        for (const QString &form : field.alsoOn)
            mFormFields[form].push_back(field.index);
    }
}

namespace {

template <class Index>
std::optional<Index> lookUp(const QHash<QString, Index> &table, const QString &name) {
    const auto found = table.constFind(name);
    return found == table.constEnd() ? std::nullopt : std::optional<Index>(found.value());
}

} // namespace

std::optional<TierIndex> Dictionary::tierByKey(const QString &key) const {
    const auto found = std::ranges::find(mParts.tiers, key, &TierDefinition::key);
    if (found == mParts.tiers.end())
        return std::nullopt;
    return TierIndex(qint32(found - mParts.tiers.begin()));
}

QString Dictionary::versionName(qint32 level) const {
    const auto found = std::ranges::find(mParts.versions, level, &VersionDefinition::level);
    return found == mParts.versions.end() ? QString() : found->name;
}

std::optional<qint32> Dictionary::versionLevelByName(const QString &name) const {
    const auto found = std::ranges::find(mParts.versions, name, &VersionDefinition::name);
    return found == mParts.versions.end() ? std::nullopt : std::optional(found->level);
}

std::vector<TreeEntry> Dictionary::tree(TierIndex tier) const {
    std::vector<TreeEntry> entries;
    std::ranges::copy_if(mParts.tree, std::back_inserter(entries),
                         [tier](const TreeEntry &entry) { return entry.tiers.contains(tier); });
    return entries;
}

std::optional<StructureIndex> Dictionary::structureByName(const QString &name) const {
    return lookUp(mStructureByName, name);
}

std::optional<StructureIndex> Dictionary::structureByPosition(const QString &uiid) const {
    return lookUp(mStructureByPosition, uiid);
}

std::optional<StructureIndex> Dictionary::structureOf(const QString &uiid) const {
    return lookUp(mStructureByUiid, uiid);
}

const FieldDefinition *Dictionary::find(const QString &id) const {
    const FieldIndex index = indexOf(id);
    return index.isValid() ? &field(index) : nullptr;
}

std::span<const FieldIndex> Dictionary::fieldsOfForm(const QString &form) const {
    const auto found = mFormFields.constFind(form);
    return found == mFormFields.constEnd() ? std::span<const FieldIndex>() : std::span<const FieldIndex>(*found);
}

QStringList Dictionary::forms() const {
    QStringList names = mFormFields.keys();
    names.sort();
    return names;
}
