#include "dependency_index.h"

#include <algorithm>

DependencyIndex::DependencyIndex(const std::vector<FieldDefinition> &fields,
                                 const std::vector<RecordStructure> &structures)
    : mEnables(fields.size()), mContents(fields.size()), mResets(fields.size()), mFollowers(fields.size()),
      mReferences(structures.size()), mEnablesByRecords(structures.size()) {
    for (const FieldDefinition &field : fields)
        collectField(field);
    for (Lists *lists : {&mEnables, &mContents, &mResets, &mFollowers, &mReferences, &mEnablesByRecords})
        sortUnique(*lists);
}

void DependencyIndex::collectField(const FieldDefinition &field) {
    collectRule(field.enabledWhen, field.index);
    if (field.resetWhenChanges.isValid())
        mResets[field.resetWhenChanges.slot()].push_back(field.index);
    if (field.follows.isValid())
        mFollowers[field.follows.slot()].push_back(field.index);
    if (field.limitsBy)
        mContents[field.limitsBy->field.slot()].push_back(field.index);
    if (field.defaultBy.field.isValid())
        mContents[field.defaultBy.field.slot()].push_back(field.index);
    for (const FieldIndex read : field.reads)
        mContents[read.slot()].push_back(field.index);
    for (const StructureIndex target : field.to.structures)
        mReferences[target.slot()].push_back(field.index);
}

void DependencyIndex::collectRule(const Rule &rule, FieldIndex dependent) {
    for (const FieldIndex read : {rule.field, rule.via}) {
        if (read.isValid())
            mEnables[read.slot()].push_back(dependent);
    }
    for (const FieldIndex read : rule.reads)
        mEnables[read.slot()].push_back(dependent);
    if (rule.structure.isValid())
        mEnablesByRecords[rule.structure.slot()].push_back(dependent);
    for (const Rule &inner : rule.inner)
        collectRule(inner, dependent);
}

void DependencyIndex::sortUnique(Lists &lists) {
    for (std::vector<FieldIndex> &list : lists) {
        std::ranges::sort(list);
        list.erase(std::unique(list.begin(), list.end()), list.end());
    }
}
