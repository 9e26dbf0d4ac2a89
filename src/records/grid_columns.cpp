#include "grid_columns.h"

#include "run_time_error.h"
#include "string_utilities.h"
#include "value_text.h"

#include <algorithm>
#include <iterator>

namespace {
constexpr qsizetype kItemsOfAColumn = 5;

struct TypeEntry {
    ColumnType type;
    QStringView text;
    QStringView cellTypeName;
};

constexpr TypeEntry kTypes[] = {
    {ColumnType::kText, u"Text", u"fldTextField"},
    {ColumnType::kCombo, u"Combo", u"fldComboField"},
    {ColumnType::kIdTracker, u"ID Tracker", u"fldIdTrackerField"},
    {ColumnType::kCheckbox, u"Checkbox", u"fldCheckboxField"},
    {ColumnType::kDerived, u"Derived", u""},
};

ColumnType typeOf(const QString &text) {
    const auto *const found = std::ranges::find(kTypes, QStringView(text), &TypeEntry::text);
    if (found == std::end(kTypes)) {
        throw RunTimeError(ErrorNumber::kBadArgument, QStringLiteral("GetDetails"),
                           QStringLiteral("Unknown column type '%1'").arg(text));
    }
    return found->type;
}

ColumnDetails columnOf(const QStringList &items, qsizetype first) {
    return {.format = items[first],
            .uiid = items[first + 1],
            .width = {ValueText::toInteger(items[first + 2])},
            .type = typeOf(TrimBlanks(items[first + 3])),
            .locked = ValueText::toInteger(items[first + 4]) == -1};
}
} // namespace

QStringList GetItemsFromBarString(const QString &text) {
    QStringList items = text.split(u'|');
    if (items.last().isEmpty())
        items.removeLast();
    return items;
}

QString SetItemsToBarString(const QStringList &items) { return items.join(u'|'); }

void GridColumns::GetDetails(const QString &fields) {
    const QStringList items = GetItemsFromBarString(fields);
    if (items.size() % kItemsOfAColumn != 0) {
        throw RunTimeError(ErrorNumber::kBadArgument, QStringLiteral("GetDetails"),
                           QStringLiteral("A column of '%1' is cut short").arg(fields));
    }
    mColumns.clear();
    for (qsizetype first = 0; first < items.size(); first += kItemsOfAColumn)
        mColumns.push_back(columnOf(items, first));
}

const ColumnDetails &GridColumns::details(qint32 column) const {
    static const ColumnDetails kNone;
    return column < 0 || column >= count() ? kNone : mColumns[std::size_t(column)];
}

QStringList GridColumns::uiids() const {
    QStringList result;
    std::ranges::transform(mColumns, std::back_inserter(result), &ColumnDetails::uiid);
    return result;
}

qint32 GridColumns::ColumnNumberByUIID(const QString &uiid) const {
    const auto found = std::ranges::find(mColumns, uiid, &ColumnDetails::uiid);
    return found == mColumns.end() ? -1 : qint32(found - mColumns.begin());
}

QString GridColumns::GetDisabledColumns() const {
    QStringList locked;
    for (const ColumnDetails &column : mColumns) {
        if (column.locked)
            locked << column.uiid;
    }
    return SetItemsToBarString(locked);
}

QString cellTypeName(ColumnType type) {
    const auto *const found = std::ranges::find(kTypes, type, &TypeEntry::type);
    return found == std::end(kTypes) ? QString() : found->cellTypeName.toString();
}
