#include "enabler_collection.h"

#include <algorithm>

namespace {
auto withKey(const QString &key) {
    return [&key](const auto &item) { return item.first == key; };
}
} // namespace

void EnablerCollection::Add(const std::shared_ptr<Ienabler> &enabler, const QString &key) {
    const auto found = std::ranges::find_if(mItems, withKey(key));
    if (found == mItems.end())
        mItems.emplace_back(key, enabler);
    else
        found->second = enabler;
}

void EnablerCollection::Remove(const QString &key) { std::erase_if(mItems, withKey(key)); }

std::shared_ptr<Ienabler> EnablerCollection::Item(const QString &key) const {
    const auto found = std::ranges::find_if(mItems, withKey(key));
    return found == mItems.end() ? nullptr : found->second;
}

std::vector<std::shared_ptr<Ienabler>> EnablerCollection::All() const {
    std::vector<std::shared_ptr<Ienabler>> all;
    for (const auto &[key, enabler] : mItems)
        all.push_back(enabler);
    return all;
}
