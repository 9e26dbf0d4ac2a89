#pragma once

#include <QString>
#include <QVariant>

#include <optional>

// The rules by which values that cross the component's boundary turn into text and numbers. Used by every comparison,
// label and drag payload, so that 3, 3.0 and "3" compare equal. An invalid QVariant is "Empty".
namespace ValueText {
// Integers plain, doubles in their shortest form with ".", booleans "-1" and "0", Currency without trailing zeros,
// Empty as "".
[[nodiscard]] Q_DECL_EXPORT QString of(const QVariant &value);
// Text is numeric if, without blanks at its ends, all of it parses as a C-locale number; DecimalSymbol() is read as a
// point too. Empty text is not numeric. Numbers and booleans are numeric, Empty is not.
[[nodiscard]] Q_DECL_EXPORT std::optional<double> number(const QVariant &value);
[[nodiscard]] Q_DECL_EXPORT bool isNumeric(const QVariant &value);
// As a 32-bit integer, halves rounded to even. Raises error 13 where value is not numeric or does not fit.
[[nodiscard]] Q_DECL_EXPORT qint32 toInteger(const QVariant &value);
// As toInteger, with fallback for what does not convert.
[[nodiscard]] Q_DECL_EXPORT qint32 toIntegerOr(const QVariant &value, qint32 fallback);
// The component's answer for a value that does not exist at present; compared case-sensitively.
[[nodiscard]] Q_DECL_EXPORT bool isUndefined(const QVariant &value);
[[nodiscard]] Q_DECL_EXPORT QString undefined();
} // namespace ValueText
