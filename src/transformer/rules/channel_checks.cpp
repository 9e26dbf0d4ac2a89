#include "cross_checks.h"

#include <QSet>

using namespace Qt::StringLiterals;

namespace {

using Severity = CrossCheck::Severity;

void complianceLimitsBandwidth(const CrossCheck &check) {
    constexpr qint32 kNarrow = 125; // stored value of 12.5 kHz
    const auto fields = check.fields({u"RFCompliance"_s, u"ChannelBandwidth_q7r"_s});
    if (!fields)
        return;
    const auto [compliance, bandwidth] = *fields;
    if (check.number(compliance) == 0)
        return;
    for (const RecordAddress channel : check.recordsOf(bandwidth)) {
        if (check.number(bandwidth, channel) > kNarrow)
            check.add(Severity::Error, bandwidth, channel, u"%0:S must be 12.5 kHz while %1:S is set."_s,
                      {check.label(bandwidth), check.label(compliance)});
    }
}

void memberOnlyOnce(const CrossCheck &check) {
    const auto fields = check.fields({u"FilteredScanGroupChannelMemberID"_s});
    if (!fields)
        return;
    const auto [member] = *fields;
    QSet<std::pair<qint32, qint32>> seen;
    for (const RecordAddress record : check.recordsOf(member)) {
        const std::pair key{record.parent, check.number(member, record)};
        if (key.second == 0)
            check.add(Severity::Warning, member, record, u"The scan group has a member without a channel."_s, {});
        else if (seen.contains(key))
            check.add(Severity::Error, member, record, u"Channel %0:S must stand only once in a scan group."_s,
                      {QString::number(key.second)});
        seen.insert(key);
    }
}

void groupsHaveMembers(const CrossCheck &check) {
    const auto fields = check.fields({u"GroupType_q7r"_s, u"FilteredScanGroupChannelMemberID"_s});
    if (!fields)
        return;
    const auto [type, member] = *fields;
    const StructureIndex members = check.reader.dictionary().field(member).structure;
    for (const RecordAddress group : check.recordsOf(type)) {
        const qint32 count = check.reader.data().recordCount(members, group.number);
        if (check.reader.shown(type, group) == u"Vote" && count < 2)
            check.add(Severity::Error, type, group, u"A scan group of the type %0:S must have at least 2 members."_s,
                      {check.reader.shown(type, group)});
        else if (count == 0)
            check.add(Severity::Warning, type, group, u"The scan group has no members."_s, {});
    }
}

// A reference that its enable rule asks for must not be None.
void requiredReferences(const CrossCheck &check) {
    for (const QString &id :
         {u"NetworkSignallingID"_s, u"ChannelGroupIDForRadioStartup"_s, u"EmChannel"_s, u"GPSPollResponseChannel"_s}) {
        const std::optional<FieldIndex> field = check.field(id);
        if (!field)
            continue;
        for (const RecordAddress record : check.recordsOf(*field)) {
            if (check.inForce(*field, record) && check.number(*field, record) == 0)
                check.add(Severity::Error, *field, record, u"%0:S must not be None here."_s, {check.label(*field)});
        }
    }
}

void emergencyCyclesEnd(const CrossCheck &check) {
    const auto fields = check.fields({u"EmCyclingNumber"_s, u"EmCyclingMaxTime"_s});
    if (!fields)
        return;
    const auto [number, time] = *fields;
    for (const RecordAddress network : check.recordsOf(number)) {
        if (check.number(number, network) == 0 && check.number(time, network) == 0 && check.inForce(number, network))
            check.add(Severity::Warning, number, network,
                      u"%0:S and %1:S are both 0: the emergency cycles never end."_s,
                      {check.label(number), check.label(time)});
    }
}

} // namespace

void CrossChecks::channels(const CrossCheck &check) {
    for (const auto each :
         {complianceLimitsBandwidth, memberOnlyOnce, groupsHaveMembers, requiredReferences, emergencyCyclesEnd})
        each(check);
}
