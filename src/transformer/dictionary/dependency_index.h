#pragma once

#include "field_definition.h"
#include "record_structure.h"

#include <span>
#include <vector>

// Who depends on whom, turned round from rules, limits, references and defaults. All lists are in field order without
// doubles.
class DependencyIndex {
  public:
    DependencyIndex() = default;
    DependencyIndex(const std::vector<FieldDefinition> &fields, const std::vector<RecordStructure> &structures);

    // Fields whose enable rule reads the field.
    [[nodiscard]] std::span<const FieldIndex> enables(FieldIndex field) const { return mEnables[field.slot()]; }
    // Fields whose limits, defaults, list or derived value follow the field.
    [[nodiscard]] std::span<const FieldIndex> contents(FieldIndex field) const { return mContents[field.slot()]; }
    // Fields that an edit of the field sets to their default or takes along.
    [[nodiscard]] std::span<const FieldIndex> resets(FieldIndex field) const { return mResets[field.slot()]; }
    [[nodiscard]] std::span<const FieldIndex> followers(FieldIndex field) const { return mFollowers[field.slot()]; }
    // Reference fields that may point at the structure.
    [[nodiscard]] std::span<const FieldIndex> references(StructureIndex to) const { return mReferences[to.slot()]; }
    // Fields whose enable rule counts or searches the structure's records.
    [[nodiscard]] std::span<const FieldIndex> enablesByRecords(StructureIndex of) const {
        return mEnablesByRecords[of.slot()];
    }

  private:
    using Lists = std::vector<std::vector<FieldIndex>>;
    void collectRule(const Rule &rule, FieldIndex dependent);
    void collectField(const FieldDefinition &field);
    static void sortUnique(Lists &lists);

    Lists mEnables;
    Lists mContents;
    Lists mResets;
    Lists mFollowers;
    Lists mReferences;
    Lists mEnablesByRecords;
};
