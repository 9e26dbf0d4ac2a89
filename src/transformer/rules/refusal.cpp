#include "refusal.h"

#include "field_reader.h"
#include "translation.h"

using namespace Qt::StringLiterals;

namespace {

QString limitText(const FieldDefinition &field, qint32 stored) {
    const QString number = ValueCodec::shortNumber(stored, field.decimals);
    const bool plain = field.unit.isEmpty() || field.unit == u"units";
    return plain ? number : Translation::Piece(u"%0:S %1:S"_s, {number, field.unit});
}

// A raster of a frequency is told in kHz, as engineers do.
QString rasterText(const FieldDefinition &field, qint32 raster) {
    if (field.decimals != FieldDefinition::kFrequencyDecimals)
        return limitText(field, raster);
    constexpr qint32 kKilohertzDecimals = 3;
    return ValueCodec::shortNumber(raster, kKilohertzDecimals) + QStringLiteral(" kHz");
}

Refusal offRaster(const FieldDefinition &field, const NumberLimits &limits) {
    if (limits.rasters.size() > 1)
        return {u"%0:S must be a multiple of %1:S or of %2:S."_s,
                {field.label, rasterText(field, limits.rasters[0]), rasterText(field, limits.rasters[1])}};
    if (!limits.rasters.empty())
        return {u"%0:S must be a multiple of %1:S."_s, {field.label, rasterText(field, limits.rasters[0])}};
    if (limits.step == 1 && field.decimals == 0)
        return {u"%0:S must be a whole number."_s, {field.label}};
    return {u"%0:S must lie between %1:S and %2:S in steps of %3:S."_s,
            {field.label, limitText(field, limits.minimum), limitText(field, limits.maximum),
             limitText(field, limits.step)}};
}

} // namespace

QString Refusal::text() const { return Translation::Fill(prompt, parameters); }

QString Refusal::piece() const { return Translation::Piece(prompt, parameters); }

Refusal RefusalText::ofValue(const FieldDefinition &field, const ValueFault &fault) {
    using Kind = ValueFault::Kind;
    const QString low = limitText(field, fault.limits.minimum);
    const QString high = limitText(field, fault.limits.maximum);
    switch (fault.kind) {
    case Kind::NotANumber:
        return {u"%0:S must be a number between %1:S and %2:S."_s, {field.label, low, high}};
    case Kind::OutOfRange:
        return {u"%0:S must lie between %1:S and %2:S."_s, {field.label, low, high}};
    case Kind::OffRaster:
        return offRaster(field, fault.limits);
    case Kind::BadCharacter:
        if (field.mask.isEmpty())
            return {u"%0:S must not contain the character %1:S."_s, {field.label, fault.offending}};
        return {u"%0:S must not contain the character %1:S. Allowed are %2:S"_s,
                {field.label, fault.offending, field.mask}};
    case Kind::TooLong:
        return {u"%0:S must have at most %1:S characters."_s, {field.label, QString::number(fault.longest)}};
    case Kind::NotInList:
        return {u"%1:S is not in the list of %0:S. Choose one of the items that it offers."_s,
                {field.label, fault.offending}};
    case Kind::AlreadyUsed:
        return {u"%0:S %1:S is already in use. It must be a free number between %2:S and %3:S."_s,
                {field.label, fault.offending, low, high}};
    case Kind::NoSuchRecord:
        return {u"%0:S must name one of the records that its list offers; %1:S is not among them."_s,
                {field.label, fault.offending}};
    case Kind::ReadOnly:
        break;
    }
    return {u"%0:S cannot be changed."_s, {field.label}};
}

Refusal RefusalText::ofRecord(const TierData &data, const RecordRefusal &refusal) {
    using Reason = RecordRefusal::Reason;
    const Dictionary &dictionary = data.dictionary();
    const RecordStructure &structure = dictionary.structure(refusal.structure);
    const QString &label = structure.navigatorRecords.isEmpty() ? structure.label : structure.navigatorRecords;
    const QString limit = QString::number(refusal.limit);
    switch (refusal.reason) {
    case Reason::NoSuchRecord:
        return {u"%0:S: there is no such record."_s, {label}};
    case Reason::Full:
        return {u"%0:S: no more records can be added. The greatest number is %1:S."_s, {label, limit}};
    case Reason::AtLeast:
        return {u"%0:S: the record cannot be deleted. The least number is %1:S."_s, {label, limit}};
    case Reason::FixedRows:
        return {u"%0:S: the number of records is fixed."_s, {label}};
    case Reason::NoFreeNumber:
        return {u"%0:S: no number is free for a new record."_s, {label}};
    case Reason::InUse:
        break;
    }
    const FieldDefinition &field = dictionary.field(refusal.usedBy);
    const RecordStructure &user = dictionary.structure(field.structure);
    return {u"%0:S: the record cannot be deleted while %1:S %2:S uses it as its %3:S."_s,
            {label, user.navigatorLabel.isEmpty() ? user.label : user.navigatorLabel,
             QString::number(data.identityOf(field.structure, refusal.user)), field.label}};
}
