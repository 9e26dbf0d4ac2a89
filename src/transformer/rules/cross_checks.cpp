#include "cross_checks.h"

#include "rule_evaluator.h"

#include <QSet>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

using Severity = Finding::Severity;

// What every check works with.
struct Check {
    const FieldReader &reader;
    RuleEvaluator rules;
    std::vector<Finding> &findings;

    // The fields; nullopt when one of them is not there.
    template <std::size_t N>
    [[nodiscard]] std::optional<std::array<FieldIndex, N>> fields(const QString (&ids)[N]) const {
        std::array<FieldIndex, N> result;
        for (std::size_t i = 0; i < N; ++i) {
            result[i] = reader.dictionary().indexOf(ids[i]);
            if (!result[i].isValid() || !rules.hasField(result[i]))
                return std::nullopt;
        }
        return result;
    }
    [[nodiscard]] qint32 number(FieldIndex field, RecordAddress record = {}) const {
        return reader.data().value(field, record).number();
    }
    [[nodiscard]] bool inForce(FieldIndex field, RecordAddress record) const {
        const FieldDefinition &definition = reader.dictionary().field(field);
        return rules.holds(definition.enabledWhen, definition.structure, record);
    }
    [[nodiscard]] const QString &label(FieldIndex field) const { return reader.dictionary().field(field).label; }
    [[nodiscard]] std::vector<RecordAddress> recordsOf(FieldIndex field) const {
        return reader.data().records(reader.dictionary().field(field).structure);
    }
    void add(Severity severity, FieldIndex field, RecordAddress record, QString prompt, QStringList parameters) const {
        findings.push_back({severity, field, record, {std::move(prompt), std::move(parameters)}});
    }
};

void complianceLimitsBandwidth(const Check &check) {
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

void memberOnlyOnce(const Check &check) {
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

void prioritiesDiffer(const Check &check) {
    const auto fields = check.fields({u"Priority1Channel_q7r"_s, u"Priority2Channel_q7r"_s});
    if (!fields)
        return;
    const auto [first, second] = *fields;
    for (const RecordAddress group : check.recordsOf(first)) {
        const bool both = check.inForce(first, group) && check.inForce(second, group);
        if (both && check.number(second, group) != 0 && check.number(first, group) == check.number(second, group))
            check.add(Severity::Error, second, group, u"%0:S and %1:S must differ."_s,
                      {check.label(first), check.label(second)});
    }
}

void groupsHaveMembers(const Check &check) {
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
void requiredReferences(const Check &check) {
    for (const QString &id :
         {u"NetworkSignallingID"_s, u"ChannelGroupIDForRadioStartup"_s, u"EmChannel"_s, u"GPSPollResponseChannel"_s}) {
        const auto fields = check.fields({id});
        if (!fields)
            continue;
        const FieldIndex field = fields->front();
        for (const RecordAddress record : check.recordsOf(field)) {
            if (check.inForce(field, record) && check.number(field, record) == 0)
                check.add(Severity::Error, field, record, u"%0:S must not be None here."_s, {check.label(field)});
        }
    }
}

void identificationNotEmpty(const Check &check) {
    const auto fields = check.fields({u"CWIDEnabled"_s, u"CWIDString"_s});
    if (!fields)
        return;
    const auto [enabled, text] = *fields;
    for (const RecordAddress record : check.recordsOf(text)) {
        if (check.number(enabled, record) != 0 && check.reader.shown(text, record).isEmpty())
            check.add(Severity::Error, text, record, u"%0:S must not be empty while %1:S is set."_s,
                      {check.label(text), check.label(enabled)});
    }
}

void foldbackOverride(const Check &check) {
    const auto fields = check.fields({u"VSWRFoldbackOverride"_s});
    if (fields && check.number(fields->front()) != 0)
        check.add(Severity::Warning, fields->front(), {},
                  u"%0:S is set: the transmitter is not protected against a bad antenna."_s,
                  {check.label(fields->front())});
}

constexpr void (*kChecks[])(const Check &) = {complianceLimitsBandwidth, memberOnlyOnce,     prioritiesDiffer,
                                              groupsHaveMembers,         requiredReferences, identificationNotEmpty,
                                              foldbackOverride};

} // namespace

void CrossChecks::run(const FieldReader &reader, std::vector<Finding> &findings) {
    const Check check{reader, RuleEvaluator(reader.data()), findings};
    for (const auto &each : kChecks)
        each(check);
}
