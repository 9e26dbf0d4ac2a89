#pragma once

#include <QMetaType>
#include <QString>

#include <compare>

// A fixed-point number with four decimals: a 64-bit count of ten-thousandths, so that a step of 0.0125 survives.
class Q_DECL_EXPORT Currency {
  public:
    constexpr Currency() = default;
    [[nodiscard]] static constexpr Currency fromTenThousandths(qint64 count) {
        Currency result;
        result.mCount = count;
        return result;
    }
    // The nearest count, halves to even.
    [[nodiscard]] static Currency fromDouble(double value);

    [[nodiscard]] constexpr qint64 tenThousandths() const { return mCount; }
    [[nodiscard]] double toDouble() const { return double(mCount) / 10000.0; }
    // Plain decimals without trailing zeros, always with ".": "0.0125", "5".
    [[nodiscard]] QString toString() const;

    constexpr auto operator<=>(const Currency &) const = default;

  private:
    qint64 mCount = 0;
};

Q_DECLARE_METATYPE(Currency)
