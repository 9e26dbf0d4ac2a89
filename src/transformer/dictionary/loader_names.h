#pragma once

#include "dictionary.h"
#include "item_list.h"

#include <QHash>

// What the parsers share while a dictionary is being read: the tables so far and the names in them.
struct LoaderNames {
    Dictionary::Parts parts;
    QHash<QString, TierIndex> tiers;
    QHash<QString, StructureIndex> structures;
    QHash<QString, FieldIndex> fields;
    QHash<QString, ItemList> lists; // by name

    // Refuse, on behalf of reader and key, a name that nothing defines.
    [[nodiscard]] TierMask tierMask(const JsonReader &reader, QLatin1StringView key) const; // missing: all
    [[nodiscard]] StructureIndex structure(const JsonReader &reader, QLatin1StringView key, const QString &name) const;
    [[nodiscard]] FieldIndex field(const JsonReader &reader, QLatin1StringView key, const QString &id) const;
    [[nodiscard]] const FieldDefinition &definition(FieldIndex index) const { return parts.fields[index.slot()]; }
};
