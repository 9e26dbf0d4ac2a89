#include "combo_column.h"

#include "value_text.h"

#include <QStringList>

#include <algorithm>
#include <vector>

namespace {
constexpr qint32 kDiffersByRecord = 2;

std::vector<double> storedNumbers(const QString &map) {
    std::vector<double> numbers;
    if (map.isEmpty() || ValueText::isUndefined(map))
        return numbers;
    for (const QString &entry : map.split(u'|'))
        numbers.push_back(ValueText::number(entry).value_or(0));
    return numbers;
}

qint32 positionIn(const std::vector<double> &numbers, const QVariant &value) {
    if (ValueText::isUndefined(value))
        return 0;
    const auto found = std::find(numbers.begin(), numbers.end(), ValueText::number(value).value_or(0));
    return found == numbers.end() ? ValueText::toIntegerOr(value, 0) : qint32(found - numbers.begin());
}
} // namespace

XArrayDB comboColumnToUI(XArrayDB &rows, qint32 column, const QString &map, const AskForComboItems &askForItems) {
    const std::vector<double> numbers = storedNumbers(map);
    XArrayDB items;
    qint32 scope = kDiffersByRecord;
    for (qint32 row = 0; row <= rows.UpperBound(1); ++row) {
        if (scope == kDiffersByRecord)
            askForItems(row + 1, items, scope);
        const qint32 position = positionIn(numbers, rows.Value(row, column));
        const bool meant = position >= 0 && position <= items.UpperBound(1);
        rows.SetValue(row, column, meant ? items.Value(position, 0) : QVariant(ValueText::undefined()));
    }
    return items;
}
