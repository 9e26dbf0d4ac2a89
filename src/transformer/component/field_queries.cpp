#include "field_queries.h"

#include "currency.h"
#include "rule_evaluator.h"
#include "value_codec.h"
#include "value_text.h"

#include <algorithm>
#include <cmath>

namespace {
// Rounded towards lower values, so that a true minimum of 0.5 answers 0.
qint32 wholeUnits(qint32 stored, qint32 decimals) { return qint32(std::floor(stored / std::pow(10.0, decimals))); }

// A raster has no step of its own; its finest is told.
qint32 toldStep(const NumberLimits &limits) {
    return limits.rasters.empty() ? limits.step : *std::ranges::min_element(limits.rasters);
}
} // namespace

QString FieldQueries::GetLabel(const QString &uiid) {
    const FieldDefinition *field = mState.findField(uiid);
    const bool shown = field != nullptr && RuleEvaluator(mState.current()).hasField(field->index);
    return shown ? field->label : QString();
}

QString FieldQueries::GetHelpText(const QString &uiid) {
    const FieldDefinition *field = mState.dictionary.find(uiid);
    return field == nullptr ? QString() : field->help;
}

QString FieldQueries::GetNavigatorLabel(const QString &uiid) {
    const RecordStructure *structure = mState.findStructure(uiid);
    return structure == nullptr ? QString() : structure->navigatorLabel;
}

QString FieldQueries::GetNavigatorRecordName(const QString &uiid) {
    const RecordStructure *structure = mState.findStructure(uiid);
    return structure == nullptr ? QString() : structure->navigatorRecords;
}

QString FieldQueries::GetValidationString(const QString &uiid) {
    const FieldDefinition *field = mState.findField(uiid);
    return field == nullptr ? QString() : field->validationString();
}

QString FieldQueries::GetFieldDescription(const QString &uiid) {
    const FieldDefinition *field = mState.findField(uiid);
    return field == nullptr ? QString() : field->unit;
}

qint32 FieldQueries::GetHelpID(const QString &uiid) {
    const FieldDefinition *field = mState.findField(uiid);
    return field == nullptr ? 0 : field->helpNumber;
}

qint32 FieldQueries::GetUIWidth(const QString &uiid) {
    const FieldDefinition *field = mState.findField(uiid);
    return field == nullptr ? 0 : field->width;
}

qint32 FieldQueries::GetFieldVersionLevel(const QString &uiid) {
    const FieldDefinition *field = mState.findField(uiid);
    return field == nullptr ? 0 : field->levelIn(mState.tier());
}

bool FieldQueries::GetFieldDisableWhenAbsent(const QString &uiid) {
    const FieldDefinition *field = mState.findField(uiid);
    return field != nullptr && field->disableWhenAbsent && field->levelIn(mState.tier()) != FieldDefinition::kNever;
}

bool FieldQueries::GetFieldEnabled(const QString &uiid, qint32 recordNr) {
    if (mState.dictionary.structureByPosition(uiid))
        return true;
    const FieldDefinition *field = mState.findField(uiid);
    return field != nullptr &&
           RuleEvaluator(mState.current())
               .isEnabled(field->index, mState.address(field->structure, recordNr), mState.accessLevel);
}

qint32 FieldQueries::GetMinValue(const QString &uiid) {
    const FieldDefinition *field = mState.findField(uiid);
    if (field == nullptr || !field->isNumeric())
        return 0;
    return wholeUnits(FieldReader(mState.current()).limits(field->index).minimum, field->decimals);
}

qint32 FieldQueries::GetMaxValue(const QString &uiid) {
    const FieldDefinition *field = mState.findField(uiid);
    if (field == nullptr || !field->isNumeric())
        return 0;
    return wholeUnits(FieldReader(mState.current()).limits(field->index).maximum, field->decimals);
}

Currency FieldQueries::GetStepValue(const QString &uiid) {
    const FieldDefinition *field = mState.findField(uiid);
    if (field == nullptr || !field->isNumeric())
        return {};
    const qint32 step = toldStep(FieldReader(mState.current()).limits(field->index));
    return Currency::fromDouble(step / std::pow(10.0, field->decimals));
}

QVariant FieldQueries::GetValue(const QString &uiid, qint32 recordNr) {
    const FieldDefinition *field = mState.dictionary.find(uiid);
    if (field == nullptr) {
        if (const std::optional<StructureIndex> structure = mState.dictionary.structureByPosition(uiid))
            return mState.positions().position(*structure);
        mState.raiseNotFound(uiid);
        return ValueText::undefined();
    }
    return valueOf(*field, recordNr);
}

QVariant FieldQueries::valueOf(const FieldDefinition &field, qint32 recordNr) {
    const FieldReader reader(mState.current());
    const RecordAddress record = mState.address(field.structure, recordNr);
    const std::optional<StoredValue> value = reader.value(field.index, record);
    if (!value) { // a window greys an undefined value before it looks whether the tier has the field at all
        const bool hidden = field.levelIn(mState.tier()) == FieldDefinition::kNever;
        return hidden ? QString() : ValueText::undefined();
    }
    const bool isFound =
        field.kind == FieldKind::Derived || field.kind == FieldKind::Reference || field.kind == FieldKind::RecordNumber;
    return isFound ? QVariant(reader.shown(field.index, record)) : ValueCodec::boundary(field, *value);
}

qint32 FieldQueries::GetNumberOfRecords(const QString &uiid) {
    const RecordStructure *structure = mState.findStructure(uiid);
    if (structure == nullptr)
        return 0;
    if (structure->isRadio())
        return 1;
    return mState.current().recordCount(structure->index, mState.address(structure->index, 1).parent);
}

QStringList FieldQueries::GetDatabaseFieldList() const {
    QStringList ids;
    for (const FieldDefinition &field : mState.dictionary.fields())
        ids.append(field.id);
    return ids;
}

void FieldQueries::FieldGotFocus(const QString &uiid) {
    mState.focusedField = uiid;
    const FieldDefinition *field = mState.dictionary.find(uiid);
    if (field == nullptr || !field->isNumeric()) {
        mState.events.raise([](TransformerEvents &listener) { listener.TransformerEvents_ClearRange(); });
        return;
    }
    mState.events.raise([&](TransformerEvents &listener) {
        listener.TransformerEvents_ShowFieldDetails(GetMinValue(uiid), GetMaxValue(uiid), GetStepValue(uiid),
                                                    field->unit);
    });
}
