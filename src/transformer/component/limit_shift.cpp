#include "limit_shift.h"

#include "field_defaults.h"

#include <algorithm>

std::vector<FieldIndex> LimitShift::limited() const {
    std::vector<FieldIndex> fields;
    for (const FieldIndex index : mData.dictionary().dependencies().contents(mField)) {
        const FieldDefinition &field = mData.dictionary().field(index);
        if (field.limitsBy && field.limitsBy->field == mField)
            fields.push_back(index);
    }
    return fields;
}

bool LimitShift::concerns(const StoredValue &value) const {
    return value != mData.value(mField, mRecord) && !limited().empty();
}

std::vector<LimitShift::Place> LimitShift::displaced(const StoredValue &value) const {
    std::vector<Place> places;
    for (const FieldIndex index : limited()) {
        const FieldDefinition &field = mData.dictionary().field(index);
        const auto &table = field.limitsBy->limits;
        const auto [low, high] = table[std::size_t(std::clamp(value.number(), 0, qint32(table.size()) - 1))];
        for (const RecordAddress record : mData.records(field.structure)) {
            const qint32 stored = mData.number(field, record);
            if (stored < low || stored > high)
                places.push_back({index, record});
        }
    }
    return places;
}

void LimitShift::moveInside(TierData &data, Changes &changes) const {
    RecordEditor editor(data);
    for (const Place &place : displaced(mData.value(mField, mRecord))) {
        const Changes made =
            editor.setValue(place.field, place.record, FieldDefaults(data).defaultFor(place.field, place.record));
        changes.insert(changes.end(), made.begin(), made.end());
    }
}
