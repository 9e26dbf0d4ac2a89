#pragma once

#include "field_type.h"

#include <QVariant>

// What a field of this type shows for a value of the component outside its first filling: a check box, option or slider
// 0 for what is not numeric, a combo 0 and an ID tracker "None" for "Undefined", every other type the value itself.
[[nodiscard]] QVariant shownValue(FieldType type, const QVariant &value);
// The value where it is numeric, else the number 0.
[[nodiscard]] QVariant numericOrZero(const QVariant &value);
// "None" where the value is "Undefined", else the value.
[[nodiscard]] QVariant idOrNone(const QVariant &value);
