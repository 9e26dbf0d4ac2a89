#pragma once

#include <QString>
#include <QtGlobal>

#include <variant>

// A value as the model holds it: a whole number (numbers in 10^-decimals units, a frequency in hertz, item values,
// flags, identities) or a text.
class StoredValue {
  public:
    StoredValue() = default;
    StoredValue(qint32 number) : mValue(number) {}         // NOLINT: a value is a number
    StoredValue(QString text) : mValue(std::move(text)) {} // NOLINT: or a text

    [[nodiscard]] bool isText() const { return mValue.index() == 1; }
    [[nodiscard]] qint32 number() const { return isText() ? 0 : *std::get_if<qint32>(&mValue); } // 0 for a text
    [[nodiscard]] QString text() const {
        return isText() ? *std::get_if<QString>(&mValue) : QString();
    } // "" for a number
    bool operator==(const StoredValue &) const = default;

  private:
    std::variant<qint32, QString> mValue;
};
