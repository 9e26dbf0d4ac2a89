#pragma once

#include "strong_index.h"

#include <QString>

// A set of tiers.
class TierMask {
  public:
    [[nodiscard]] static constexpr TierMask all() { return TierMask(~0U); }
    [[nodiscard]] static constexpr TierMask none() { return TierMask(0U); }
    [[nodiscard]] constexpr bool contains(TierIndex tier) const { return ((mBits >> tier.place()) & 1U) != 0; }
    constexpr void insert(TierIndex tier) { mBits |= 1U << tier.place(); }
    constexpr bool operator==(const TierMask &) const = default;

  private:
    constexpr explicit TierMask(quint32 bits) : mBits(bits) {}
    quint32 mBits;
};

// One radio model of the family.
struct TierDefinition {
    QString key;     // "Basic"; the TierKey of the component's operations
    QString caption; // "KX4600 Basic"
};

// One database version. level counts from 1, ascending in the file.
struct VersionDefinition {
    qint32 level = 0;
    QString name; // "3.10"
};

// One entry of the form tree, in the tree's order.
struct TreeEntry {
    QString form;         // class name of the form, or the key of a group
    QString caption;      // English text of the node
    bool isGroup = false; // a heading without a form
    bool isChild = false; // stands under the last entry that is no child
    TierMask tiers = TierMask::all();
};
