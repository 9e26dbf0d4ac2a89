#include "col_menu_items.h"

#include "run_time_error.h"

#include <algorithm>
#include <utility>

clsMenuItem::clsMenuItem() : mSubItems(std::make_unique<colMenuItems>()) {}
clsMenuItem::~clsMenuItem() = default;

clsMenuItem &colMenuItems::Add(ItemPointer item, const QString &key, const Place &place) {
    const QString source = QStringLiteral("colMenuItems.Add");
    if (place.before && place.after)
        throw RunTimeError(ErrorNumber::kBadArgument, source, QStringLiteral("Cannot specify 'before' and 'after'"));
    if (Exists(key))
        throw RunTimeError(ErrorNumber::kBadArgument, source, QStringLiteral("There is already an item ") + key);
    std::size_t at = mEntries.size();
    if (place.before)
        at = placeOf(*place.before);
    else if (place.after)
        at = placeOf(*place.after) + 1;
    return *mEntries.insert(mEntries.begin() + std::ptrdiff_t(at), Entry{key, std::move(item)})->item;
}

clsMenuItem &colMenuItems::Item(const QString &key) const { return *mEntries[placeOf(key)].item; }

clsMenuItem &colMenuItems::Item(qint32 index) const {
    if (index < 1 || index > Count())
        throw RunTimeError(ErrorNumber::kCollectionIndex, QStringLiteral("colMenuItems.Item"),
                           QStringLiteral("Index out of bounds"));
    return *mEntries[std::size_t(index - 1)].item;
}

void colMenuItems::Remove(const QString &key) { mEntries.erase(mEntries.begin() + std::ptrdiff_t(placeOf(key))); }

std::optional<std::size_t> colMenuItems::indexOf(const QString &key) const {
    const auto place = std::find_if(mEntries.begin(), mEntries.end(), [&key](const Entry &entry) {
        return entry.key.compare(key, Qt::CaseInsensitive) == 0;
    });
    if (place == mEntries.end())
        return std::nullopt;
    return std::size_t(place - mEntries.begin());
}

std::size_t colMenuItems::placeOf(const QString &key) const {
    const std::optional<std::size_t> index = indexOf(key);
    if (!index)
        throw RunTimeError(ErrorNumber::kCollectionKey, QStringLiteral("colMenuItems.Item"),
                           QStringLiteral("There is no item ") + key);
    return *index;
}
