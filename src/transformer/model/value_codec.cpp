#include "value_codec.h"

#include "decimal_text.h"
#include "value_text.h"

#include <algorithm>

namespace {

constexpr QLatin1StringView kNone("None");
constexpr qsizetype kFrequencyWidth = 10; // 000.000000
using Kind = ValueFault::Kind;

ValueFault fault(Kind kind, const FieldDefinition &field, const NumberLimits &limits, const QString &offending) {
    return {kind, limits, field.length, offending};
}

QString shownReference(const FieldDefinition &field, qint32 value) {
    const StructureIndex structure = field.to.structureOf(value);
    if (!structure.isValid())
        return kNone;
    QString identity = QString::number(field.to.identityOf(value));
    if (field.to.texts.isEmpty())
        return identity;
    const auto place = std::ranges::find(field.to.structures, structure) - field.to.structures.begin();
    return field.to.texts[place].arg(identity);
}

ValueResult parseNumber(const FieldDefinition &field, const QString &text, const NumberLimits &limits) {
    const DecimalText decimal = DecimalText::parse(text, field.decimals);
    if (decimal.state == DecimalText::State::NoNumber)
        return fault(Kind::NotANumber, field, limits, text);
    if (decimal.value < limits.minimum || decimal.value > limits.maximum)
        return fault(Kind::OutOfRange, field, limits, text);
    if (decimal.state == DecimalText::State::MoreDecimals)
        return fault(decimal.value == limits.maximum ? Kind::OutOfRange : Kind::OffRaster, field, limits, text);
    return ValueCodec::checkStored(field, qint32(decimal.value), limits);
}

ValueResult parseItem(const FieldDefinition &field, const QString &text) {
    const ListItem *item = field.itemByText(text.trimmed());
    if (item == nullptr)
        return fault(Kind::NotInList, field, {}, text);
    return StoredValue(item->value);
}

ValueResult parseFlag(const FieldDefinition &field, const QString &text) {
    const QString trimmed = text.trimmed();
    if (trimmed != u"0" && trimmed != u"1" && trimmed != u"-1")
        return fault(Kind::NotInList, field, {}, text);
    return StoredValue(trimmed == u"0" ? 0 : 1);
}

ValueResult parseReference(const FieldDefinition &field, const QString &text) {
    const QString trimmed = text.trimmed();
    if (trimmed == kNone)
        return ValueCodec::checkStored(field, 0, {});
    for (qsizetype place = 0; place < field.to.texts.size(); ++place) {
        const QString head = field.to.texts[place].section(QLatin1String("%1"), 0, 0);
        const QString tail = field.to.texts[place].section(QLatin1String("%1"), 1, 1);
        bool isNumber = false;
        const qint32 identity = trimmed.mid(head.size(), trimmed.size() - head.size() - tail.size()).toInt(&isNumber);
        const bool fits = trimmed.startsWith(head) && trimmed.endsWith(tail) && isNumber && identity > 0 &&
                          identity < ReferenceTargets::kPlaceFactor;
        if (fits)
            return StoredValue(field.to.stored(field.to.structures[std::size_t(place)], identity));
    }
    bool isNumber = false;
    const qint32 identity = trimmed.toInt(&isNumber);
    if (!isNumber || identity < 1 || field.to.isMixed())
        return fault(Kind::NoSuchRecord, field, {}, text);
    return StoredValue(identity);
}

// Upper case where the mask has only the upper-case letter.
QString inMaskCase(const FieldDefinition &field, QString text) {
    for (QChar &letter : text) {
        const QChar upper = letter.toUpper();
        if (upper != letter && !field.mask.contains(letter) && field.mask.contains(upper))
            letter = upper;
    }
    return text;
}

ValueResult checkText(const FieldDefinition &field, const QString &text) {
    for (const QChar letter : text) {
        const bool allowed =
            field.mask.isEmpty() ? letter.isPrint() && letter.unicode() < 256 : field.mask.contains(letter);
        if (!allowed)
            return fault(Kind::BadCharacter, field, {}, letter);
    }
    if (text.size() > field.length)
        return fault(Kind::TooLong, field, {}, text);
    return StoredValue(text);
}

bool isOnRaster(qint32 value, const NumberLimits &limits) {
    if (limits.rasters.empty())
        return (qint64(value) - limits.minimum) % limits.step == 0;
    return std::ranges::any_of(limits.rasters, [value](qint32 raster) { return value % raster == 0; });
}

} // namespace

QString ValueCodec::shownNumber(qint32 stored, qint32 decimals) { return DecimalText::of(stored, decimals); }

QString ValueCodec::shortNumber(qint32 stored, qint32 decimals) {
    QString text = shownNumber(stored, decimals);
    while (decimals > 0 && text.endsWith(QLatin1Char('0')))
        text.chop(1);
    if (text.endsWith(QLatin1Char('.')))
        text.chop(1);
    return text;
}

QString ValueCodec::shown(const FieldDefinition &field, const StoredValue &value) {
    if (value.isText())
        return value.text();
    const qint32 number = value.number();
    switch (field.kind) {
    case FieldKind::Number:
        return field.decimals == FieldDefinition::kFrequencyDecimals
                   ? shownNumber(number, field.decimals).rightJustified(kFrequencyWidth, u'0')
                   : shownNumber(number, field.decimals);
    case FieldKind::Reference:
        return shownReference(field, number);
    case FieldKind::RecordNumber:
        if (number >= 1 && number <= qint32(field.items.size()))
            return field.items[std::size_t(number - 1)].text;
        return QString::number(number);
    case FieldKind::List:
    case FieldKind::Choice:
        if (const ListItem *item = field.itemByValue(number))
            return item->text;
        return QString::number(number);
    default:
        return QString::number(number);
    }
}

QString ValueCodec::raw(const StoredValue &value) {
    return value.isText() ? value.text() : QString::number(value.number());
}

QVariant ValueCodec::boundary(const FieldDefinition &field, const StoredValue &value) {
    switch (field.kind) {
    case FieldKind::List:
    case FieldKind::Flag:
        return value.number();
    case FieldKind::Number:
        return field.decimals == 0 ? QVariant(value.number()) : QVariant(shown(field, value));
    case FieldKind::RecordNumber:
        return field.items.empty() ? QVariant(value.number()) : QVariant(shown(field, value));
    default:
        return shown(field, value);
    }
}

ValueResult ValueCodec::checkStored(const FieldDefinition &field, const StoredValue &value,
                                    const NumberLimits &limits) {
    const qint32 number = value.number();
    if (!field.isStored())
        return fault(Kind::ReadOnly, field, {}, raw(value));
    if (value.isText() != field.isTextual())
        return fault(Kind::NotANumber, field, limits, raw(value));
    if (field.isTextual())
        return checkText(field, value.text());
    if (field.isNumeric()) {
        if (number < limits.minimum || number > limits.maximum)
            return fault(Kind::OutOfRange, field, limits, shownNumber(number, field.decimals));
        if (!isOnRaster(number, limits))
            return fault(Kind::OffRaster, field, limits, shownNumber(number, field.decimals));
    }
    const bool listed = (field.kind != FieldKind::Flag || number == 0 || number == 1) &&
                        (!field.hasItems() || field.itemByValue(number) != nullptr);
    if (!listed)
        return fault(Kind::NotInList, field, {}, raw(value));
    if (field.kind == FieldKind::Reference &&
        (number == 0 ? !field.to.hasNone : number < 0 || !field.to.structureOf(number).isValid()))
        return fault(Kind::NoSuchRecord, field, {}, raw(value));
    return value;
}

ValueResult ValueCodec::parseShown(const FieldDefinition &field, const QString &text, const NumberLimits &limits) {
    switch (field.kind) {
    case FieldKind::Number:
    case FieldKind::Identity:
        return parseNumber(field, text, limits);
    case FieldKind::Text:
        return checkText(field, inMaskCase(field, text));
    case FieldKind::List:
    case FieldKind::Choice:
        return parseItem(field, text);
    case FieldKind::Flag:
        return parseFlag(field, text);
    case FieldKind::Reference:
        return parseReference(field, text);
    case FieldKind::RecordNumber:
    case FieldKind::Derived:
        break;
    }
    return fault(Kind::ReadOnly, field, limits, text);
}

ValueResult ValueCodec::parseRaw(const FieldDefinition &field, const QString &text, const NumberLimits &limits) {
    if (field.isTextual())
        return checkText(field, text);
    bool isNumber = false;
    const qint32 number = text.toInt(&isNumber);
    if (!isNumber)
        return fault(Kind::NotANumber, field, limits, text);
    return checkStored(field, number, limits);
}

ValueResult ValueCodec::parseBoundary(const FieldDefinition &field, const QVariant &value, const NumberLimits &limits) {
    if (field.kind == FieldKind::List) {
        const std::optional<double> number = ValueText::number(value);
        if (!number || field.itemByValue(ValueText::toIntegerOr(value, -1)) == nullptr)
            return fault(Kind::NotInList, field, limits, ValueText::of(value));
        return StoredValue(ValueText::toInteger(value));
    }
    // A double's shortest form can have an exponent, which no field takes.
    const bool isDouble = value.typeId() == QMetaType::Double || value.typeId() == QMetaType::Float;
    const QString text = isDouble ? QString::number(value.toDouble(), 'f', FieldDefinition::kFrequencyDecimals + 1)
                                  : ValueText::of(value);
    return parseShown(field, text, limits);
}
