#include "item_scopes.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

FieldIndex fieldOf(const FieldReader &reader, const QString &id) { return reader.dictionary().indexOf(id); }

// A stored number of a field of the same record; -1 when there is no such field.
qint32 numberOf(const ItemScopes::Query &query, const QString &id) {
    const FieldIndex field = fieldOf(query.reader, id);
    return field.isValid() ? query.reader.data().value(field, query.record).number() : -1;
}

QString shownOf(const ItemScopes::Query &query, const QString &id) {
    const FieldIndex field = fieldOf(query.reader, id);
    return field.isValid() ? query.reader.shown(field, query.record) : QString();
}

// True when another record below the same parent has the value in the query's field.
bool isUsedByOther(const ItemScopes::Query &query) {
    const TierData &data = query.reader.data();
    const qint32 count = data.recordCount(query.field.structure, query.record.parent);
    for (qint32 number = 1; number <= count; ++number) {
        if (number != query.record.number &&
            data.number(query.field, {query.record.parent, number}) == query.item.value)
            return true;
    }
    return false;
}

const QString &nameOf(const FieldReader &reader, StructureIndex structure) {
    return reader.dictionary().structure(structure).name;
}

} // namespace

bool ItemScopes::everything(const Query & /*query*/) { return true; }

bool ItemScopes::membersOfGroup(const Query &query) {
    const FieldIndex member = fieldOf(query.reader, u"FilteredScanGroupChannelMemberID"_s);
    if (!member.isValid())
        return false;
    const TierData &data = query.reader.data();
    const FieldDefinition &field = query.reader.dictionary().field(member);
    const qint32 count = data.recordCount(field.structure, query.record.number);
    for (qint32 number = 1; number <= count; ++number) {
        if (data.number(field, {query.record.number, number}) == query.item.value)
            return true;
    }
    return false;
}

bool ItemScopes::membersButPriority1(const Query &query) {
    return query.item.value != numberOf(query, u"Priority1Channel_q7r"_s) && membersOfGroup(query);
}

bool ItemScopes::channelsNotInGroup(const Query &query) { return !isUsedByOther(query); }

bool ItemScopes::keyParameter(const Query &query) {
    struct Parameter {
        QLatin1StringView action;
        QLatin1StringView structure;
        qint32 most; // record numbers above it are not offered; 0: all are
    };
    constexpr Parameter kParameters[] = {{"Home channel"_L1, "Channel"_L1, 0},
                                         {"Group"_L1, "ScanGroup"_L1, 0},
                                         {"Send DTMF"_L1, "DTMFPreset"_L1, 0},
                                         {"Send preset call"_L1, "FreeFormatSequence"_L1, 4}};
    if (!query.field.resetWhenChanges.isValid())
        return false;
    const QString action = query.reader.shown(query.field.resetWhenChanges, query.record);
    return std::ranges::any_of(kParameters, [&](const Parameter &parameter) {
        return action == parameter.action && nameOf(query.reader, query.item.structure) == parameter.structure &&
               (parameter.most == 0 || query.item.target.number <= parameter.most);
    });
}

bool ItemScopes::systemsOfSignallingType(const Query &query) {
    constexpr std::pair<QLatin1StringView, QLatin1StringView> kSystems[] = {{"Selcall"_L1, "SelcallSystem"_L1},
                                                                            {"Two Tone"_L1, "Type99System"_L1},
                                                                            {"DTMF"_L1, "DTMFSystem"_L1},
                                                                            {"MDC1200"_L1, "MDC1200System"_L1}};
    const QString type = shownOf(query, u"SignallingType"_s);
    return std::ranges::any_of(kSystems, [&](const auto &system) {
        return type == system.first && nameOf(query.reader, query.item.structure) == system.second;
    });
}

bool ItemScopes::pinDirections(const Query &query) {
    const ListItem *item = query.field.itemByValue(query.item.value);
    const bool inputOnly = shownOf(query, u"DigitalIOPin"_s).endsWith(u"(input)"_s);
    return item != nullptr && (item->text != u"Output" || !inputOnly);
}

bool ItemScopes::pinActions(const Query &query) {
    constexpr qint32 kFirstOutputAction = 32; // inputs below, outputs from here
    if (query.item.value == 0)
        return true;
    const QString wanted = query.item.value < kFirstOutputAction ? u"Input"_s : u"Output"_s;
    return shownOf(query, u"DigitalIODirection"_s) == wanted && !isUsedByOther(query);
}

bool ItemScopes::outputPins(const Query &query) {
    const FieldIndex direction = fieldOf(query.reader, u"DigitalIODirection"_s);
    return query.item.target != query.record && direction.isValid() &&
           query.reader.shown(direction, query.item.target) == u"Output";
}

bool ItemScopes::freeControlStatusValues(const Query &query) {
    const ListItem *item = query.field.itemByValue(query.item.value);
    const FieldIndex twoDigits = fieldOf(query.reader, u"FreeForm2DigitStatus"_s);
    if (item == nullptr || !twoDigits.isValid())
        return false;
    const Dictionary &dictionary = query.reader.dictionary();
    const StructureIndex sequences = dictionary.field(twoDigits).structure;
    const qint32 each = dictionary.structure(sequences).perParent;
    qsizetype wanted = 1;
    for (qint32 place = 1; place <= each; ++place) {
        const auto flag = query.reader.value(twoDigits, {0, (query.record.parent - 1) * each + place});
        wanted = flag && flag->number() != 0 ? 2 : wanted;
    }
    return item->text.size() == wanted && !isUsedByOther(query);
}

qint32 ItemScopes::selcallSystemOfChannel(const FieldReader &reader, RecordAddress channel) {
    const FieldIndex network = fieldOf(reader, u"ChannelNetworkId_q7r"_s);
    const FieldIndex signalling = fieldOf(reader, u"NetworkSignallingID"_s);
    if (!network.isValid() || !signalling.isValid())
        return 0;
    const auto owner = reader.target(network, channel);
    const auto system = owner ? reader.target(signalling, owner->record) : std::nullopt;
    return system && nameOf(reader, system->structure) == u"SelcallSystem" ? system->record.number : 0;
}
