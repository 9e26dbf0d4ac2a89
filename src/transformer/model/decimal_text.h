#pragma once

#include <QString>
#include <QtGlobal>

// Decimal numbers as text, without the roundings of a double.
struct DecimalText {
    enum class State {
        NoNumber,
        Exact,
        MoreDecimals, // further digits that are not 0 were cut off; value is the next one towards minus infinity
    };
    State state = State::NoNumber;
    qint64 value = 0; // in 10^-decimals units; beyond 32 bits it stays at a value far outside them

    // An optional sign, digits with at most one "." or "," among them; blanks at the ends do not count.
    [[nodiscard]] static DecimalText parse(const QString &text, qint32 decimals);
    // With exactly that many decimals and ".".
    [[nodiscard]] static QString of(qint32 value, qint32 decimals);
};
