#include "change_notifier.h"

#include <algorithm>

ChangeNotifier::Place ChangeNotifier::shownPlace(FieldIndex field, StructureIndex changed, RecordAddress record) {
    const StructureIndex structure = mState.dictionary.field(field).structure;
    if (structure == changed)
        return {field, record};
    return {field, mState.address(structure, std::max(mState.positions().position(structure), 1))};
}

void ChangeNotifier::addDependent(std::vector<Place> &places, FieldIndex dependent, const ValueStep &step,
                                  Effects &effects) {
    const StructureIndex changed = mState.dictionary.field(step.field).structure;
    const Place place = shownPlace(dependent, changed, step.record);
    if (std::ranges::find(places, place) == places.end())
        places.push_back(place);
    const RecordStructure &structure = mState.dictionary.structure(mState.dictionary.field(dependent).structure);
    if (structure.index != changed && !structure.grids.isEmpty())
        effects.grids.insert(structure.guide);
}

void ChangeNotifier::collect(const ValueStep &step, Effects &effects) {
    const Place own{step.field, step.record};
    if (std::ranges::find(effects.values, own) == effects.values.end())
        effects.values.push_back(own);
    const DependencyIndex &dependencies = mState.dictionary.dependencies();
    for (const FieldIndex dependent : dependencies.contents(step.field))
        addDependent(effects.values, dependent, step, effects);
    for (const FieldIndex dependent : dependencies.enables(step.field))
        addDependent(effects.enables, dependent, step, effects);
}

void ChangeNotifier::raiseValues(const Changes &changes, const Origin &origin) {
    Effects effects;
    for (const Change &change : changes) {
        if (const auto *step = std::get_if<ValueStep>(&change))
            collect(*step, effects);
    }
    raise(effects, &origin);
}

void ChangeNotifier::raiseAfterRecords(const Changes &changes) {
    Effects effects;
    const DependencyIndex &dependencies = mState.dictionary.dependencies();
    const auto addStructure = [&](StructureIndex structure) {
        for (const FieldIndex field : dependencies.enablesByRecords(structure))
            effects.enables.push_back(shownPlace(field, structure, {}));
        for (const FieldIndex field : dependencies.references(structure))
            effects.values.push_back(shownPlace(field, structure, {}));
    };
    for (const Change &change : changes) {
        if (const auto *value = std::get_if<ValueStep>(&change))
            collect(*value, effects);
        else if (const auto *insert = std::get_if<InsertStep>(&change))
            addStructure(insert->structure);
        else if (const auto *remove = std::get_if<RemoveStep>(&change))
            addStructure(remove->structure);
    }
    raise(effects, nullptr);
}

void ChangeNotifier::raiseAfterImport(const Changes &changes) {
    Changes shown;
    std::set<StructureIndex> grown;
    for (const Change &change : changes) {
        const auto *insert = std::get_if<InsertStep>(&change);
        if (insert != nullptr && grown.insert(insert->structure).second)
            shown.push_back(change);
        const auto *value = std::get_if<ValueStep>(&change);
        if (value == nullptr)
            continue;
        const StructureIndex structure = mState.dictionary.field(value->field).structure;
        if (value->record.number == mState.positions().position(structure) &&
            mState.isInScope(structure, value->record))
            shown.push_back(change);
    }
    raiseAfterRecords(shown);
}

void ChangeNotifier::raise(const Effects &effects, const Origin *origin) {
    const TierData &data = mState.current();
    const auto isShown = [&](const Place &place) {
        const StructureIndex structure = mState.dictionary.field(place.field).structure;
        return data.exists(structure, place.record) && mState.isInScope(structure, place.record);
    };
    for (const Place &place : effects.values) {
        const bool isOrigin = origin != nullptr && place.field == origin->field && place.record == origin->record;
        // A grid and a field of one form may both show it: the other one must not keep the old value.
        const bool shownOnce =
            mState.dictionary.structure(mState.dictionary.field(place.field).structure).grids.isEmpty();
        const bool known = isOrigin && origin->showsValue && shownOnce;
        if (!mState.updateUiOnFieldChange || !isShown(place) || known)
            continue;
        const QString id = mState.dictionary.field(place.field).id;
        const QVariant value = mFields.GetValue(id, place.record.number);
        mState.events.raise([&](TransformerEvents &listener) {
            listener.TransformerEvents_UpdateUIFieldByUIID(id, place.record.number, value);
        });
    }
    for (const Place &place : effects.enables) {
        if (!isShown(place))
            continue;
        const QString id = mState.dictionary.field(place.field).id;
        const bool enabled = mFields.GetFieldEnabled(id, place.record.number);
        mState.events.raise(
            [&](TransformerEvents &listener) { listener.TransformerEvents_SetEnableDisableByUIID(id, enabled); });
    }
    for (const QString &guide : effects.grids)
        mState.events.raise(
            [&guide](TransformerEvents &listener) { listener.TransformerEvents_RefreshGridByUIID(guide); });
}
