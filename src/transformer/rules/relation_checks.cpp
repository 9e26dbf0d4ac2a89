#include "cross_checks.h"

using namespace Qt::StringLiterals;

namespace {

using Severity = CrossCheck::Severity;

struct Order {
    QString lower;
    QString upper;
    Severity severity;
    enum { NotAbove, NotAboveUnlessZero, Below } relation;
};

struct Pair {
    QString first;
    QString second;
};

struct Text {
    QString field;
    qsizetype length; // 0: any, but not empty
    QStringList refused;
};

void checkOrder(const CrossCheck &check, const Order &row) {
    const auto fields = check.fields({row.lower, row.upper});
    if (!fields)
        return;
    const auto [lower, upper] = *fields;
    for (const RecordAddress record : check.recordsOf(lower)) {
        const qint32 low = check.number(lower, record);
        const qint32 high = check.number(upper, record);
        const bool unlimited = row.relation == Order::NotAboveUnlessZero && high == 0;
        const bool holds = row.relation == Order::Below ? low < high : low <= high;
        if (holds || unlimited || !check.inForce(lower, record))
            continue;
        const bool strict = row.relation == Order::Below;
        check.add(row.severity, lower, record,
                  strict ? u"%0:S must be below %1:S."_s : u"%0:S must not be above %1:S."_s,
                  {check.label(lower), check.label(upper)});
    }
}

// Compared as shown: two lists may store the same thing under different numbers. None differs from everything.
void checkDifference(const CrossCheck &check, const Pair &row) {
    const auto fields = check.fields({row.first, row.second});
    if (!fields)
        return;
    const auto [first, second] = *fields;
    for (const RecordAddress record : check.recordsOf(first)) {
        const QString shown = check.reader.shown(second, record);
        const bool differs = shown == u"None" || shown != check.reader.shown(first, record);
        if (!differs && check.inForce(first, record) && check.inForce(second, record))
            check.add(Severity::Error, second, record, u"%0:S and %1:S must differ."_s,
                      {check.label(first), check.label(second)});
    }
}

void checkText(const CrossCheck &check, const Text &row) {
    const auto fields = check.fields({row.field});
    if (!fields)
        return;
    const FieldIndex field = fields->front();
    for (const RecordAddress record : check.recordsOf(field)) {
        const QString text = check.reader.shown(field, record);
        if (!check.inForce(field, record))
            continue;
        if (text.isEmpty())
            check.add(Severity::Error, field, record, u"%0:S must not be empty."_s, {check.label(field)});
        else if (row.length > 0 && text.size() != row.length)
            check.add(Severity::Error, field, record, u"%0:S must have %1:S digits."_s,
                      {check.label(field), QString::number(row.length)});
        else if (row.refused.contains(text))
            check.add(Severity::Error, field, record, u"%0:S must not be %1:S."_s, {check.label(field), text});
    }
}

} // namespace

void CrossChecks::relations(const CrossCheck &check) {
    const Order orders[] = {
        {u"T99MinFirstTonePeriod_q7r"_s, u"T99MaxFirstTonePeriod_q7r"_s, Severity::Error, Order::NotAbove},
        {u"T99MinGapPeriod_q7r"_s, u"T99MaxGapPeriod_q7r"_s, Severity::Error, Order::NotAbove},
        {u"T99MinSecondTonePeriod_q7r"_s, u"T99MaxSecondTonePeriod_q7r"_s, Severity::Error, Order::NotAbove},
        {u"T99MinAllCallTonePeriod_q7r"_s, u"T99MaxAllCallTonePeriod_q7r"_s, Severity::Error, Order::NotAbove},
        {u"T99MaxSecondTonePeriod_q7r"_s, u"T99MinAllCallTonePeriod_q7r"_s, Severity::Warning, Order::Below},
        {u"dataTxBackoffTimeMin"_s, u"dataTxBackoffTimeMax"_s, Severity::Error, Order::NotAbove},
        {u"SIBTMinimumDecodeDuration_q7r"_s, u"SIBTToneEncodeDuration_q7r"_s, Severity::Warning, Order::NotAbove},
        {u"EmCyclingTxTime"_s, u"TxDurationTimer"_s, Severity::Error, Order::NotAboveUnlessZero},
    };
    for (const Order &row : orders)
        checkOrder(check, row);
    const Pair pairs[] = {
        {u"Priority1Channel_q7r"_s, u"Priority2Channel_q7r"_s},
        {u"RepeatTone"_s, u"GroupTone"_s},
        {u"DataXon"_s, u"DataXoff"_s},
        {u"DataHLSIPort"_s, u"GPSSerialPort"_s},
        {u"IOPRTS"_s, u"IOPCTS"_s},
    };
    for (const Pair &row : pairs)
        checkDifference(check, row);
    const Text texts[] = {
        {u"CWIDString"_s, 0, {}},
        {u"DataIdentity"_s, 0, {u"0"_s, u"00"_s, u"000"_s, u"0000"_s, u"00000"_s}},
        {u"dataTotalSystemIdHex"_s, 4, {}},
        {u"dataTotalRadioIdHex"_s, 4, {u"0000"_s, u"FFFF"_s}},
        {u"dataTotalDestinationIdHex"_s, 4, {}},
        {u"AlertRingPattern1"_s, 0, {}},
        {u"AlertRingPattern2"_s, 0, {}},
        {u"AlertRingPatternGroup"_s, 0, {}},
        {u"AlertRingPatternAll"_s, 0, {}},
        {u"AlertRingPatternPriority"_s, 0, {}},
        {u"AlertRingPatternEmergency"_s, 0, {}},
    };
    for (const Text &row : texts)
        checkText(check, row);
}
