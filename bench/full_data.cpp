#include "full_data.h"

#include "component_state.h"
#include "run_time_error.h"
#include "value_codec.h"

namespace {
const QString kChannels = QStringLiteral("ChannelID_q7r");
const QString kGroups = QStringLiteral("GroupID_q7r");
const QString kMember = QStringLiteral("FilteredScanGroupChannelMemberID");
const QString kStatus = QStringLiteral("ControlStatusValue");
} // namespace

void FullData::fill() {
    mTransformer.BeginBatchUpdate();
    for (const RecordStructure &each : mTransformer.dictionary().structures())
        if (each.commands.add)
            addRecords(each);
    setFrequencies();
    setMembers();
    setStatuses();
    mTransformer.EndBatchUpdate();
}

const RecordStructure &FullData::structure(const QString &guide) const {
    const Dictionary &dictionary = mTransformer.dictionary();
    return dictionary.structure(dictionary.structureOf(guide).value());
}

void FullData::addRecords(const RecordStructure &each) {
    const TierData &data = mTransformer.state().current();
    const qint32 most = each.in(data.tier()).most;
    const qint32 parents = each.isScoped() ? data.totalRecordCount(each.parent) : 1;
    for (qint32 parent = 1; parent <= parents; ++parent)
        addUntilFull(each, each.isScoped() ? parent : 0, most);
}

void FullData::addUntilFull(const RecordStructure &each, qint32 parent, qint32 most) {
    if (parent > 0)
        set(mTransformer.dictionary().structure(each.parent).position, 1, parent);
    for (qint32 count = mTransformer.state().current().recordCount(each.index, parent); count < most; ++count) {
        qint32 added = 0;
        bool ok = false;
        mTransformer.AddRecord(each.guide, QString(), added, ok);
        if (!ok)
            throw RunTimeError(ErrorNumber::kBadArgument, each.name, QStringLiteral("a record was refused"));
    }
}

void FullData::setFrequencies() {
    constexpr qint32 kRaster = 12500;   // hertz
    constexpr qint32 kMega = 1'000'000; // limits of frequencies cross the boundary in megahertz
    const FieldDefinition *rx = mTransformer.dictionary().find(QStringLiteral("RxFreq_q7r"));
    const qint32 least = mTransformer.GetMinValue(rx->id) * kMega;
    const qint32 places = (mTransformer.GetMaxValue(rx->id) * kMega - least) / kRaster;
    const qint32 channels = mTransformer.GetNumberOfRecords(kChannels);
    for (qint32 channel = 1; channel <= channels; ++channel)
        set(rx->id, channel, ValueCodec::shownNumber(least + channel % places * kRaster, rx->decimals));
}

void FullData::setMembers() {
    const QString position = structure(kGroups).position;
    const qint32 channels = mTransformer.GetNumberOfRecords(kChannels);
    const qint32 groups = mTransformer.GetNumberOfRecords(kGroups);
    for (qint32 group = 1; group <= groups; ++group) {
        set(position, 1, group);
        const qint32 members = mTransformer.GetNumberOfRecords(kMember);
        for (qint32 member = 1; member <= members; ++member)
            set(kMember, member, QString::number((group * members + member) % channels + 1));
    }
}

// New rows have the status 0; each status may stand once in a system.
void FullData::setStatuses() {
    constexpr int kHex = 16;
    const RecordStructure &statuses = structure(kStatus);
    const QString position = mTransformer.dictionary().structure(statuses.parent).position;
    const qint32 systems = mTransformer.state().current().totalRecordCount(statuses.parent);
    for (qint32 system = 1; system <= systems; ++system) {
        set(position, 1, system);
        for (qint32 row = mTransformer.GetNumberOfRecords(kStatus); row > 1; --row)
            set(kStatus, row, QString::number(row - 1, kHex).toUpper());
    }
}

void FullData::set(const QString &uiid, qint32 record, const QVariant &value) {
    bool ok = false;
    mTransformer.SetValue(uiid, value, record, true, ok);
    if (!ok)
        throw RunTimeError(ErrorNumber::kBadArgument, uiid, QStringLiteral("a value was refused"));
}
