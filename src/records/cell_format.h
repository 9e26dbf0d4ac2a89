#pragma once

#include <QString>

// A column's format: an edit mask and a number format, parted by the first blank; without a blank all is mask.
struct CellFormat {
    // The point of the mask becomes the system's decimal symbol.
    [[nodiscard]] static CellFormat of(const QString &text);

    QString mask;         // "0", "9" and "#" stand for a digit, other characters for themselves
    QString numberFormat; // such as "000.000000"

    // The mask in the terms of a line edit; "" for none.
    [[nodiscard]] QString inputMask() const;
    // The number with at least as many digits before its point as the number format has zeros, and with exactly its
    // decimals. The decimal symbol and "." are both read, the decimal symbol is written. Text that is no number, and
    // every text without a number format, stays.
    [[nodiscard]] QString formatted(const QString &text) const;
};
