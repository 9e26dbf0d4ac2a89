#include "field_definition.h"

#include <algorithm>

QString FieldDefinition::validationString() const {
    if (isTextual())
        return mask;
    if (!isNumeric())
        return {};
    QString allowed = QStringLiteral("0123456789");
    if (decimals > 0)
        allowed += QLatin1Char('.');
    if (limits.minimum < 0)
        allowed += QLatin1Char('-');
    return allowed;
}

const ListItem *FieldDefinition::itemByValue(qint32 value) const {
    // Nearly always the value is the place.
    if (value >= 0 && value < qint32(items.size()) && items[std::size_t(value)].value == value)
        return &items[std::size_t(value)];
    const auto found = std::ranges::find(items, value, &ListItem::value);
    return found == items.end() ? nullptr : &*found;
}

const ListItem *FieldDefinition::itemByText(const QString &text) const {
    const auto found = std::ranges::find(items, text, &ListItem::text);
    return found == items.end() ? nullptr : &*found;
}

StructureIndex ReferenceTargets::structureOf(qint32 stored) const {
    if (identityOf(stored) <= 0)
        return {};
    const std::size_t place = isMixed() ? std::size_t(stored / kPlaceFactor) : 0;
    return place < structures.size() ? structures[place] : StructureIndex();
}

qint32 ReferenceTargets::stored(StructureIndex structure, qint32 identity) const {
    const auto place = std::ranges::find(structures, structure) - structures.begin();
    return isMixed() ? qint32(place) * kPlaceFactor + identity : identity;
}
