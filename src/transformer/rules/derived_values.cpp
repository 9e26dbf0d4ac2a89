#include "derived_values.h"

using namespace Qt::StringLiterals;

namespace {

QString shownOf(const FieldReader &reader, const QString &id, RecordAddress record) {
    const FieldIndex field = reader.dictionary().indexOf(id);
    return field.isValid() ? reader.shown(field, record) : QString();
}

// The number at the head of a gap's item text ("2 periods"); "" for None.
QString periodsOf(const QString &gap) {
    const QString head = gap.section(u' ', 0, 0);
    bool isNumber = false;
    head.toInt(&isNumber);
    return isNumber ? head : QString();
}

} // namespace

StoredValue DerivedValues::tierCaption(const FieldReader &reader, RecordAddress /*record*/) {
    return reader.dictionary().tier(reader.data().tier()).caption;
}

StoredValue DerivedValues::signallingTypeText(const FieldReader &reader, RecordAddress record) {
    return shownOf(reader, u"SignallingType"_s, record);
}

StoredValue DerivedValues::radioIdNumber(const FieldReader &reader, RecordAddress record) {
    constexpr int kHexadecimal = 16;
    bool isNumber = false;
    const uint number = shownOf(reader, u"MDC1200ANISequence"_s, record).toUInt(&isNumber, kHexadecimal);
    return isNumber ? QString::number(number) : QString();
}

StoredValue DerivedValues::sequenceText(const FieldReader &reader, RecordAddress record) {
    struct Part {
        QString burst;
        QString gap; // behind the burst
    };
    const Part parts[] = {{u"FreeFormBurstB"_s, u"FreeFormGap1"_s},
                          {u"FreeFormBurstR1"_s, u"FreeFormGap2"_s},
                          {u"FreeFormBurstR2"_s, u"FreeFormGap3"_s},
                          {u"FreeFormBurstR3"_s, u"FreeFormGap4"_s}};
    QString text;
    QString gap; // waits for something to follow
    for (const Part &part : parts) {
        const QString digits = shownOf(reader, part.burst, record);
        if (digits.isEmpty())
            continue;
        text += (gap.isEmpty() ? QString() : u'-' + gap + u'-') + digits;
        gap = periodsOf(shownOf(reader, part.gap, record));
    }
    const QString status = shownOf(reader, u"FreeFormStatus"_s, record);
    if (status.isEmpty())
        return text;
    return text + (gap.isEmpty() ? QString() : u'-' + gap + u'-') + u'/' + status;
}

StoredValue DerivedValues::sequenceTextAt(const FieldReader &reader, RecordAddress system, qint32 place) {
    const auto sequences = reader.dictionary().structureByName(u"FreeFormatSequence"_s);
    if (!sequences)
        return QString();
    const RecordAddress record{0, (system.number - 1) * reader.dictionary().structure(*sequences).perParent + place};
    return reader.data().exists(*sequences, record) ? sequenceText(reader, record) : QString();
}
