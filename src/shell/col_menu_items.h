#pragma once

#include "cls_menu_item.h"

#include <memory>
#include <optional>
#include <vector>

class QMenu;

// Menu items in their order, each under a key that is compared without regard to case.
class colMenuItems {
  public:
    using ItemPointer = std::shared_ptr<clsMenuItem>;
    // Key of the item before or after which an item is put; both at once are refused.
    struct Place {
        std::optional<QString> before;
        std::optional<QString> after;
    };

    // Raises a bad argument for a place with both keys or a key that is there already, 35601 for an unknown place.
    clsMenuItem &Add(ItemPointer item, const QString &key, const Place &place = {});
    // Raises 35601 for an unknown key.
    [[nodiscard]] clsMenuItem &Item(const QString &key) const;
    // index: from 1; raises 35600 out of bounds.
    [[nodiscard]] clsMenuItem &Item(qint32 index) const;
    [[nodiscard]] qint32 Count() const { return qint32(mEntries.size()); }
    [[nodiscard]] bool Exists(const QString &key) const { return indexOf(key).has_value(); }
    // Raises 35601 for an unknown key.
    void Remove(const QString &key);
    void RemoveAll() { mEntries.clear(); }

    // Where the items were built: the item above (null at the top), their first place there, and the menu itself. Not
    // owned.
    clsMenuItem *ParentMenu = nullptr;
    qint32 ParentPosition = 0;
    QMenu *MenuHandle = nullptr;

  private:
    struct Entry {
        QString key;
        ItemPointer item;
    };
    [[nodiscard]] std::optional<std::size_t> indexOf(const QString &key) const;
    [[nodiscard]] std::size_t placeOf(const QString &key) const;

    std::vector<Entry> mEntries;
};
