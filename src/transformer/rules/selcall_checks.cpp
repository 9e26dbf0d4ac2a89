#include "cross_checks.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

using Severity = CrossCheck::Severity;

const QString kDigits = u"0123456789ABCDEF"_s;

// A sequence has a digit for each of the format's letters that stand for it.
struct Length {
    QString sequence;
    QString format;
    QChar letter;
    enum { Always, WhereTheFormatHasIt } when;
};

void checkLength(const CrossCheck &check, const Length &row) {
    const auto fields = check.fields({row.sequence, row.format});
    if (!fields)
        return;
    const auto [sequence, format] = *fields;
    const Dictionary &dictionary = check.reader.dictionary();
    for (const RecordAddress record : check.recordsOf(sequence)) {
        const auto system =
            check.reader.related(dictionary.field(sequence).structure, record, dictionary.field(format).structure);
        const QString digits = check.reader.shown(sequence, record);
        const qsizetype wanted = check.reader.shown(format, *system).count(row.letter);
        const bool isSent = wanted > 0 || row.when == Length::Always;
        if (isSent && !digits.isEmpty() && digits.size() != wanted)
            check.add(Severity::Error, sequence, record,
                      u"%0:S must have as many digits as %1:S has the letter %2:S: %3:S."_s,
                      {check.label(sequence), check.label(format), row.letter, QString::number(wanted)});
    }
}

void statusLength(const CrossCheck &check) {
    const auto fields = check.fields({u"FreeFormStatus"_s, u"FreeForm2DigitStatus"_s});
    if (!fields)
        return;
    const auto [status, twoDigits] = *fields;
    for (const RecordAddress record : check.recordsOf(status)) {
        const QString digits = check.reader.shown(status, record);
        const qsizetype wanted = check.number(twoDigits, record) == 0 ? 1 : 2;
        if (!digits.isEmpty() && digits.size() != wanted && check.inForce(status, record))
            check.add(Severity::Error, status, record, u"%0:S must have %1:S digits."_s,
                      {check.label(status), QString::number(wanted)});
    }
}

// The sequences of a system: every text of digits in it and in what belongs to it.
QStringList sequencesOf(const CrossCheck &check, StructureIndex systems, RecordAddress system) {
    QStringList sequences;
    for (const FieldDefinition &field : check.reader.dictionary().fields()) {
        if (!field.isTextual() || field.mask != kDigits || !check.field(field.id))
            continue;
        for (const RecordAddress record : check.recordsOf(field.index)) {
            if (check.reader.related(field.structure, record, systems) == system)
                sequences.append(check.reader.shown(field.index, record));
        }
    }
    return sequences;
}

double hertzOf(const QString &item) { return item.section(u' ', 0, 0).toDouble(); }

void tonesAreTold(const CrossCheck &check, const std::vector<FieldIndex> &tones, RecordAddress system) {
    constexpr double kTellable = 1.025;
    QStringList sequences; // collected when two tones come close
    const auto together = [&](std::size_t one, std::size_t other) {
        if (sequences.isEmpty())
            sequences = sequencesOf(check, check.reader.dictionary().field(tones[0]).structure, system);
        return std::ranges::any_of(sequences, [&](const QString &sequence) {
            return sequence.contains(kDigits[qsizetype(one)]) && sequence.contains(kDigits[qsizetype(other)]);
        });
    };
    for (std::size_t other = 1; other < tones.size(); ++other) {
        for (std::size_t one = 0; one < other; ++one) {
            const double first = hertzOf(check.reader.shown(tones[one], system));
            const double second = hertzOf(check.reader.shown(tones[other], system));
            const QStringList labels{check.label(tones[one]), check.label(tones[other])};
            if (first == second)
                check.add(Severity::Error, tones[other], system,
                          u"The digits %0:S and %1:S must not share a frequency."_s, labels);
            else if (std::max(first, second) < std::min(first, second) * kTellable && together(one, other))
                check.add(
                    Severity::Warning, tones[other], system,
                    u"The frequencies of the digits %0:S and %1:S, which stand together in a sequence, lie less than 2.5 % apart."_s,
                    labels);
        }
    }
}

void customTones(const CrossCheck &check) {
    std::vector<FieldIndex> tones;
    for (const QChar digit : kDigits) {
        if (const std::optional<FieldIndex> tone = check.field(u"CustomFrequencies"_s + digit))
            tones.push_back(*tone);
    }
    if (tones.size() != std::size_t(kDigits.size()))
        return;
    for (const RecordAddress system : check.recordsOf(tones.front())) {
        if (check.inForce(tones.front(), system))
            tonesAreTold(check, tones, system);
    }
}

void twoToneCustomTones(const CrossCheck &check) {
    constexpr double kTellable = 1.02;
    const auto fields = check.fields({u"T99CustomToneA_q7r"_s, u"T99CustomToneB_q7r"_s, u"T99CustomToneC_q7r"_s});
    if (!fields)
        return;
    for (const RecordAddress system : check.recordsOf(fields->front())) {
        if (!check.inForce(fields->front(), system))
            continue;
        for (const auto &[one, other] : {std::pair(0U, 1U), std::pair(0U, 2U), std::pair(1U, 2U)}) {
            const qint32 first = check.number((*fields)[one], system);
            const qint32 second = check.number((*fields)[other], system);
            if (std::max(first, second) < std::min(first, second) * kTellable)
                check.add(Severity::Warning, (*fields)[other], system, u"%0:S and %1:S lie less than 2 % apart."_s,
                          {check.label((*fields)[one]), check.label((*fields)[other])});
        }
    }
}

void mdcIdentity(const CrossCheck &check) {
    constexpr qint32 kHighest = 0xDFFF;
    constexpr int kHexadecimal = 16;
    const std::optional<FieldIndex> field = check.field(u"MDC1200ANISequence"_s);
    if (!field)
        return;
    for (const RecordAddress system : check.recordsOf(*field)) {
        const QString digits = check.reader.shown(*field, system);
        const qint32 number = digits.toInt(nullptr, kHexadecimal);
        if (number < 1 || number > kHighest)
            check.add(Severity::Error, *field, system, u"%0:S must lie between %1:S and %2:S."_s,
                      {check.label(*field), u"0001"_s, u"DFFF"_s});
        else if (digits.contains(u'F'))
            check.add(Severity::Warning, *field, system,
                      u"%0:S should not have the digit F, which stands for any digit in calls."_s,
                      {check.label(*field)});
    }
}

} // namespace

void CrossChecks::selcall(const CrossCheck &check) {
    const Length lengths[] = {
        {u"RxDecodeSeq1_q7r"_s, u"RxFormat_q7r"_s, u'C', Length::Always},
        {u"RxDecodeSeq2_q7r"_s, u"RxFormat_q7r"_s, u'C', Length::Always},
        {u"BurstSequence0_q7r"_s, u"TxFormat_q7r"_s, u'R', Length::WhereTheFormatHasIt},
        {u"BurstSequence1_q7r"_s, u"TxFormat_q7r"_s, u'I', Length::WhereTheFormatHasIt},
        {u"BurstSequence2_q7r"_s, u"TxFormat_q7r"_s, u'C', Length::WhereTheFormatHasIt},
        {u"BurstSequence3_q7r"_s, u"TxFormat_q7r"_s, u'S', Length::WhereTheFormatHasIt},
    };
    for (const Length &row : lengths)
        checkLength(check, row);
    for (const auto each : {statusLength, customTones, twoToneCustomTones, mdcIdentity})
        each(check);
}
