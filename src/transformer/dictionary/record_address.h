#pragma once

#include <QtGlobal>

#include <compare>

// Which record of a structure is meant. number counts from 1 within the parent; it is 0 for the radio itself, which
// has one record without a number. parent is the 1-based number of the parent's record in child structures (bursts,
// control status, group members) and 0 everywhere else, also in flat tables that grow with their parent.
struct RecordAddress {
    qint32 parent = 0;
    qint32 number = 0;

    constexpr auto operator<=>(const RecordAddress &) const = default;
};
