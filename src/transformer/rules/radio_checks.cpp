#include "cross_checks.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

using Severity = CrossCheck::Severity;

// A reference to one of a fixed number of rows, whose content the user has not given.
void referredRowsAreFilled(const CrossCheck &check) {
    const Dictionary &dictionary = check.reader.dictionary();
    const auto isEmpty = [&](const FieldReader::Target &target) {
        const RecordStructure &structure = dictionary.structure(target.structure);
        const FieldDefinition *guide = dictionary.find(structure.guide);
        const bool isText = guide != nullptr && (guide->isTextual() || guide->kind == FieldKind::Derived);
        return isText && (structure.fixed || structure.isFlat()) &&
               check.reader.shown(guide->index, target.record).isEmpty();
    };
    for (const FieldDefinition &field : dictionary.fields()) {
        if (field.kind != FieldKind::Reference || !check.field(field.id))
            continue;
        for (const RecordAddress record : check.recordsOf(field.index)) {
            const auto target = check.reader.target(field.index, record);
            if (target && isEmpty(*target) && check.inForce(field.index, record))
                check.add(Severity::Warning, field.index, record, u"%0:S refers to a row that is empty."_s,
                          {field.label});
        }
    }
}

// The pins of the flow control have no other work.
void flowControlPinsAreFree(const CrossCheck &check) {
    const auto pins = check.fields({u"DigitalIOPin"_s, u"DigitalIOAction"_s});
    if (!pins)
        return;
    const auto pin = std::get<0>(*pins);
    const auto action = std::get<1>(*pins);
    for (const QString &id : {u"IOPRTS"_s, u"IOPCTS"_s}) {
        const std::optional<FieldIndex> line = check.field(id);
        if (!line || !check.inForce(*line, {}))
            continue;
        const QString name = check.reader.shown(*line, {});
        const std::vector<RecordAddress> records = check.recordsOf(action);
        const auto used = std::ranges::find_if(records, [&](RecordAddress record) {
            return check.reader.shown(pin, record) == name && check.number(action, record) != 0 &&
                   check.inForce(action, record);
        });
        if (used != records.end())
            check.add(Severity::Error, *line, {},
                      u"%0:S must be a pin without an action of its own; %1:S has the action %2:S."_s,
                      {check.label(*line), name, check.reader.shown(action, *used)});
    }
}

void pinIsNoneOfZeros(const CrossCheck &check) {
    const auto fields = check.fields({u"SecurityPIN1"_s, u"SecurityPIN2"_s, u"SecurityPIN3"_s});
    if (!fields || !check.inForce(fields->front(), {}))
        return;
    const bool zeros = std::ranges::all_of(*fields, [&](FieldIndex digit) { return check.number(digit) == 0; });
    if (zeros)
        check.add(Severity::Warning, fields->front(), {}, u"%0:S should not be 000."_s, {check.label(fields->front())});
}

void foldbackOverride(const CrossCheck &check) {
    const std::optional<FieldIndex> field = check.field(u"VSWRFoldbackOverride"_s);
    if (field && check.number(*field) != 0)
        check.add(Severity::Warning, *field, {},
                  u"%0:S is set: the transmitter is not protected against a bad antenna."_s, {check.label(*field)});
}

} // namespace

void CrossChecks::radio(const CrossCheck &check) {
    for (const auto each : {referredRowsAreFilled, flowControlPinsAreFree, pinIsNoneOfZeros, foldbackOverride})
        each(check);
}
