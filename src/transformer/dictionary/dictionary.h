#pragma once

#include "dependency_index.h"
#include "field_definition.h"
#include "memory_layout.h"
#include "record_structure.h"
#include "tier_definition.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <optional>
#include <span>
#include <vector>

// All that is known about the radio family, read-only. Made by DictionaryLoader; one object serves the whole component
// and outlives everything that refers to it.
class Dictionary {
  public:
    // Tables as the loader has checked them; the columns of the fields and what structures work out at load are set.
    struct Parts {
        std::vector<TierDefinition> tiers;
        std::vector<VersionDefinition> versions;
        std::vector<TreeEntry> tree;
        std::vector<RecordStructure> structures;
        std::vector<FieldDefinition> fields;
        qint32 layoutNumber = 0;
    };
    explicit Dictionary(Parts parts);

    // Tiers, from plain to full.
    [[nodiscard]] std::span<const TierDefinition> tiers() const { return mParts.tiers; }
    [[nodiscard]] const TierDefinition &tier(TierIndex index) const { return mParts.tiers[index.slot()]; }
    [[nodiscard]] std::optional<TierIndex> tierByKey(const QString &key) const;
    [[nodiscard]] std::span<const VersionDefinition> versions() const { return mParts.versions; }
    // The newest version's level; the level of new data.
    [[nodiscard]] qint32 newestLevel() const { return mParts.versions.back().level; }
    // "3.20" for level 2; "" for an unknown level.
    [[nodiscard]] QString versionName(qint32 level) const;
    [[nodiscard]] std::optional<qint32> versionLevelByName(const QString &name) const;
    // The entries of the form tree that the tier has, in the tree's order.
    [[nodiscard]] std::vector<TreeEntry> tree(TierIndex tier) const;

    [[nodiscard]] std::span<const RecordStructure> structures() const { return mParts.structures; }
    [[nodiscard]] const RecordStructure &structure(StructureIndex index) const {
        return mParts.structures[index.slot()];
    }
    // The structure of the radio itself.
    [[nodiscard]] StructureIndex radio() const { return mRadio; }
    [[nodiscard]] std::optional<StructureIndex> structureByName(const QString &name) const;
    // The structure whose stored position has this UIID.
    [[nodiscard]] std::optional<StructureIndex> structureByPosition(const QString &uiid) const;
    // The structure that a UIID belongs to, be it a field, a guide, a position or a grid id.
    [[nodiscard]] std::optional<StructureIndex> structureOf(const QString &uiid) const;

    [[nodiscard]] std::span<const FieldDefinition> fields() const { return mParts.fields; }
    [[nodiscard]] const FieldDefinition &field(FieldIndex index) const { return mParts.fields[index.slot()]; }
    // Case-sensitive; an invalid index for what is no field.
    [[nodiscard]] FieldIndex indexOf(const QString &id) const { return mFieldById.value(id); }
    [[nodiscard]] const FieldDefinition *find(const QString &id) const;
    // All fields that the form shows, its own first; empty for an unknown form.
    [[nodiscard]] std::span<const FieldIndex> fieldsOfForm(const QString &form) const;
    [[nodiscard]] QStringList forms() const; // that have fields, sorted

    [[nodiscard]] const DependencyIndex &dependencies() const { return mDependencies; }
    [[nodiscard]] const MemoryLayout &layout() const { return mLayout; }

  private:
    void indexStructures();
    void indexFields();

    Parts mParts;
    StructureIndex mRadio;
    QHash<QString, FieldIndex> mFieldById;
    QHash<QString, StructureIndex> mStructureByName;
    QHash<QString, StructureIndex> mStructureByPosition;
    QHash<QString, StructureIndex> mStructureByUiid;
    QHash<QString, std::vector<FieldIndex>> mFormFields;
    DependencyIndex mDependencies;
    MemoryLayout mLayout;
};
