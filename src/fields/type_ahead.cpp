#include "type_ahead.h"

#include <algorithm>

int TypeAhead::type(const QString &typed, const QStringList &items) {
    mTyped += typed;
    return search(items);
}

int TypeAhead::backspace(const QStringList &items) {
    mTyped.chop(1);
    return search(items);
}

int TypeAhead::search(const QStringList &items) {
    for (; !mTyped.isEmpty(); mTyped.chop(1)) {
        const auto found = std::find_if(items.begin(), items.end(), [this](const QString &item) {
            return item.startsWith(mTyped, Qt::CaseInsensitive);
        });
        if (found != items.end())
            return int(found - items.begin());
    }
    return 0;
}
