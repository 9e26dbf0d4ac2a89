#include "field_facts.h"

#include "value_codec.h"

#include <QStringList>

#include <array>

namespace {
constexpr qsizetype kMostItems = 16;

struct AccessName {
    qint32 access;
    const char *name;
};
// As the access levels of the Options menu are called; everybody may edit the fields of the lowest.
constexpr std::array kAccessNames{AccessName{40, "Low or above"}, AccessName{60, "Medium or above"},
                                  AccessName{80, "High"}};

QString joined(const QStringList &words, const QString &last) {
    if (words.size() < 2)
        return words.join(QString());
    return words.mid(0, words.size() - 1).join(QStringLiteral(", ")) + last + words.constLast();
}

QString between(const std::pair<qint32, qint32> &limits, qint32 decimals) {
    return QStringLiteral("%1 to %2")
        .arg(ValueCodec::shortNumber(limits.first, decimals), ValueCodec::shortNumber(limits.second, decimals));
}
} // namespace

QString FieldFacts::values(const FieldDefinition &field) const {
    switch (field.kind) {
    case FieldKind::Number:
        return numbers(field);
    case FieldKind::Text:
        return field.length > 0 ? QStringLiteral("up to %1 characters").arg(field.length) +
                                      (field.mask.isEmpty() ? QString() : QStringLiteral(" of ") + field.mask)
                                : QStringLiteral("text");
    case FieldKind::List:
    case FieldKind::Choice:
        return items(field);
    case FieldKind::Flag:
        return QStringLiteral("off or on");
    case FieldKind::Reference:
        return targets(field);
    case FieldKind::Identity:
        return between({field.limits.minimum, field.limits.maximum}, 0) + QStringLiteral(", each once");
    case FieldKind::RecordNumber:
    case FieldKind::Derived:
        break;
    }
    return QStringLiteral("shown only");
}

QString FieldFacts::numbers(const FieldDefinition &field) const {
    const NumberLimits &limits = field.limits;
    QStringList lines;
    if (field.limitsBy) {
        const auto &table = *field.limitsBy;
        for (qsizetype row = 0; row < qsizetype(table.limits.size()); ++row)
            lines << itemOf(table.field, row) + QStringLiteral(": ") +
                         between(table.limits[size_t(row)], field.decimals);
    } else {
        lines << between({limits.minimum, limits.maximum}, field.decimals);
    }
    if (!limits.rasters.empty()) {
        QStringList rasters;
        for (const qint32 raster : limits.rasters)
            rasters << ValueCodec::shortNumber(raster, field.decimals);
        lines << QStringLiteral("a multiple of ") + joined(rasters, QStringLiteral(" or "));
    } else if (limits.step != 1 || field.decimals > 0) {
        lines << QStringLiteral("in steps of ") + ValueCodec::shortNumber(limits.step, field.decimals);
    }
    return lines.join(QStringLiteral("; "));
}

QString FieldFacts::items(const FieldDefinition &field) const {
    QStringList texts;
    for (const ListItem &item : field.items) {
        if (!texts.contains(item.text))
            texts << item.text;
    }
    if (texts.size() <= kMostItems)
        return texts.join(QStringLiteral(", "));
    const qsizetype first = kMostItems / 2;
    return texts.mid(0, first).join(QStringLiteral(", ")) +
           QStringLiteral(", ... %1 (%2 items)").arg(texts.constLast()).arg(texts.size());
}

QString FieldFacts::targets(const FieldDefinition &field) const {
    QStringList names;
    for (const StructureIndex structure : field.to.structures) {
        const RecordStructure &target = mDictionary.structure(structure);
        names << (target.navigatorLabel.isEmpty() ? target.label : target.navigatorLabel);
    }
    names.removeDuplicates();
    if (field.to.hasNone)
        names << QStringLiteral("None");
    return joined(names, QStringLiteral(" or "));
}

QString FieldFacts::itemOf(FieldIndex field, qsizetype place) const {
    const FieldDefinition &by = mDictionary.field(field);
    const ListItem *item = by.itemByValue(qint32(place));
    return by.label + u' ' + (item == nullptr ? QString::number(place) : item->text);
}

QString FieldFacts::defaultValue(const FieldDefinition &field) const {
    if (!field.isStored())
        return {};
    if (field.isTextual())
        return field.defaultText.isEmpty() ? QStringLiteral("empty") : field.defaultText;
    if (field.defaultNextFree)
        return QStringLiteral("the next free one");
    if (field.defaultBy.field.isValid())
        return QStringLiteral("depends on ") + mDictionary.field(field.defaultBy.field).label;
    if (field.kind == FieldKind::Flag)
        return field.defaultNumber == 0 ? QStringLiteral("off") : QStringLiteral("on");
    return ValueCodec::shown(field, field.defaultNumber);
}

QString FieldFacts::models(const TierMask &tiers) const {
    QStringList names;
    for (qint32 place = 0; place < qint32(mDictionary.tiers().size()); ++place) {
        if (tiers.contains(TierIndex(place)))
            names << mDictionary.tier(TierIndex(place)).key;
    }
    return names.size() == qsizetype(mDictionary.tiers().size()) ? QString() : joined(names, QStringLiteral(" and "));
}

QString FieldFacts::needs(const FieldDefinition &field) const {
    QStringList notes;
    if (const QString only = models(field.tiers); !only.isEmpty())
        notes << QStringLiteral("Models: %1.").arg(only);
    if (field.level > 1)
        notes << QStringLiteral("Database version %1 or later.").arg(mDictionary.versionName(field.level));
    for (const AccessName &row : kAccessNames) {
        if (!field.readOnly && field.isStored() && row.access == field.access)
            notes << QStringLiteral("Access level: %1.").arg(QString::fromLatin1(row.name));
    }
    return notes.join(u' ');
}
