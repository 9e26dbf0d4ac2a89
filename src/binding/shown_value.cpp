#include "shown_value.h"

#include "value_text.h"

#include <algorithm>

namespace {
QVariant zeroForUndefined(const QVariant &value) { return ValueText::isUndefined(value) ? QVariant(0) : value; }

struct Substitute {
    FieldType type;
    QVariant (*shown)(const QVariant &);
};

constexpr Substitute kSubstitutes[] = {
    {FieldType::Checkbox, &numericOrZero}, {FieldType::OptionButton, &numericOrZero},
    {FieldType::Slider, &numericOrZero},   {FieldType::Combo, &zeroForUndefined},
    {FieldType::IdTracker, &idOrNone},
};
} // namespace

QVariant numericOrZero(const QVariant &value) { return ValueText::isNumeric(value) ? value : QVariant(0); }

QVariant idOrNone(const QVariant &value) {
    return ValueText::isUndefined(value) ? QVariant(QStringLiteral("None")) : value;
}

QVariant shownValue(FieldType type, const QVariant &value) {
    const auto *const found = std::ranges::find(kSubstitutes, type, &Substitute::type);
    return found == std::end(kSubstitutes) ? value : found->shown(value);
}
