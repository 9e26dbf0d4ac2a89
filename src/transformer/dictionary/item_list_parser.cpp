#include "item_list_parser.h"

#include <QSet>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView kItemKeys[] = {"text"_L1, "value"_L1, "level"_L1, "tiers"_L1};

ListItem readItem(const LoaderNames &names, const JsonReader &owner, const QJsonValue &entry, qint32 place,
                  bool &haveValues) {
    if (entry.isString())
        return {entry.toString(), place, 0, TierMask::all()};
    const JsonReader reader = owner.nested("items"_L1, entry);
    reader.allow(kItemKeys);
    haveValues = haveValues || reader.has("value"_L1);
    return {reader.text("text"_L1), reader.integerOr("value"_L1, place), reader.integerOr("level"_L1, 0),
            names.tierMask(reader, "tiers"_L1)};
}

} // namespace

ItemList ItemListParser::read(const LoaderNames &names, const JsonReader &reader, const QJsonArray &items) {
    ItemList list;
    list.items.reserve(std::size_t(items.size()));
    QSet<qint32> values;
    QSet<QString> texts;
    for (const auto &entry : items) {
        ListItem item = readItem(names, reader, entry, qint32(list.items.size()), list.haveValues);
        if (values.contains(item.value))
            reader.refuse("items"_L1, u"the value %1 stands twice"_s.arg(item.value));
        if (texts.contains(item.text))
            list.repeatedText = item.text;
        values.insert(item.value);
        texts.insert(item.text);
        list.items.push_back(std::move(item));
    }
    return list;
}
