#include "older_version.h"

#include "field_defaults.h"
#include "form_session.h"
#include "translation.h"

#include <algorithm>

StoredValue OlderVersion::defaultOf(const FieldDefinition &field, RecordAddress record) const {
    return FieldDefaults(mData).defaultFor(field.index, record);
}

bool OlderVersion::loses(const FieldDefinition &field, RecordAddress record) const {
    const StoredValue value = mData.value(field.index, record);
    const ListItem *item = field.hasItems() ? field.itemByValue(value.number()) : nullptr;
    const bool lacks = field.level > mLevel || (item != nullptr && item->level > mLevel);
    return lacks && value != defaultOf(field, record);
}

QStringList OlderVersion::lostFields() const {
    QStringList lost;
    const Dictionary &dictionary = mData.dictionary();
    for (const FieldDefinition &field : dictionary.fields()) {
        const bool listed = field.isStored() && field.levelIn(mData.tier()) != FieldDefinition::kNever &&
                            std::ranges::any_of(mData.records(field.structure),
                                                [&](RecordAddress record) { return loses(field, record); });
        if (listed)
            lost.append(Translation::Piece(QStringLiteral("%0:S (%1:S)"),
                                           {field.label, Findings::formCaption(dictionary, field)}));
    }
    return lost;
}

TierData OlderVersion::reduced() const {
    TierData older = mData;
    older.setVersionLevel(mLevel);
    for (const FieldDefinition &field : mData.dictionary().fields()) {
        if (!field.isStored())
            continue;
        for (const RecordAddress record : mData.records(field.structure)) {
            if (loses(field, record))
                older.setValue(field.index, record, defaultOf(field, record));
        }
    }
    return older;
}
