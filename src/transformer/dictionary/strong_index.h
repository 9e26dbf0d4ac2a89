#pragma once

#include <QHash>
#include <QtGlobal>

#include <compare>

// A 0-based place in one of the dictionary's tables. Places of different tables do not mix. A default-made index is
// invalid and stands for "none".
template <class Tag>
class StrongIndex {
  public:
    constexpr StrongIndex() = default;
    constexpr explicit StrongIndex(qint32 place) : mPlace(place) {}
    [[nodiscard]] constexpr qint32 place() const { return mPlace; }
    [[nodiscard]] constexpr std::size_t slot() const { return std::size_t(mPlace); }
    [[nodiscard]] constexpr bool isValid() const { return mPlace >= 0; }
    constexpr auto operator<=>(const StrongIndex &) const = default;

  private:
    qint32 mPlace = -1;
};

template <class Tag>
std::size_t qHash(StrongIndex<Tag> index, std::size_t seed = 0) {
    return ::qHash(index.place(), seed);
}

using FieldIndex = StrongIndex<struct FieldIndexTag>;         // order of the field files
using StructureIndex = StrongIndex<struct StructureIndexTag>; // order of structures.json
using TierIndex = StrongIndex<struct TierIndexTag>;           // order of tiers.json; the tier's number in the radio
