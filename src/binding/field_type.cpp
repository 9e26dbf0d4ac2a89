#include "field_type.h"

#include <algorithm>

namespace {
struct TypeName {
    QStringView name;
    FieldType type;
};

constexpr TypeName kTypeNames[] = {
    {u"fldTextField", FieldType::Text},
    {u"fldComboField", FieldType::Combo},
    {u"fldCheckboxField", FieldType::Checkbox},
    {u"fldOptionButtonField", FieldType::OptionButton},
    {u"fldIdTrackerField", FieldType::IdTracker},
    {u"fldSliderField", FieldType::Slider},
    {u"fldGridField", FieldType::Grid},
    {u"fldPageNavigator", FieldType::PageNavigator},
    {u"fldFrame", FieldType::Frame},
    {u"Frame", FieldType::PlainFrame},
    {u"SSTab", FieldType::Tab},
};
} // namespace

FieldType fieldTypeOf(QStringView typeName) {
    const auto *const found = std::ranges::find(kTypeNames, typeName, &TypeName::name);
    return found == std::end(kTypeNames) ? FieldType::Other : found->type;
}

bool isOneOf(FieldType type, std::initializer_list<FieldType> types) {
    return std::ranges::find(types, type) != types.end();
}
