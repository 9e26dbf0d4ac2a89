#include "loader_names.h"

TierMask LoaderNames::tierMask(const JsonReader &reader, QLatin1StringView key) const {
    if (!reader.has(key))
        return TierMask::all();
    TierMask mask = TierMask::none();
    for (const QString &tier : reader.texts(key)) {
        if (!tiers.contains(tier))
            reader.refuse(key, QStringLiteral("there is no tier \"%1\"").arg(tier));
        mask.insert(tiers.value(tier));
    }
    return mask;
}

StructureIndex LoaderNames::structure(const JsonReader &reader, QLatin1StringView key, const QString &name) const {
    if (!structures.contains(name))
        reader.refuse(key, QStringLiteral("there is no structure \"%1\"").arg(name));
    return structures.value(name);
}

FieldIndex LoaderNames::field(const JsonReader &reader, QLatin1StringView key, const QString &id) const {
    if (!fields.contains(id))
        reader.refuse(key, QStringLiteral("there is no field \"%1\"").arg(id));
    return fields.value(id);
}
