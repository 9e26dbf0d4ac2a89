#include "field_setter.h"

#include "rule_evaluator.h"
#include "value_validator.h"

FieldSetter::Outcome FieldSetter::set(const FieldDefinition &field, RecordAddress record, const QString &text,
                                      ValueForm form) {
    const TierData &data = mSession.state().current();
    const ValueValidator validator(data);
    const bool settable = field.isStored() && !field.readOnly;
    if (!settable && text.trimmed() == FieldReader(data).shown(field.index, record))
        return {};
    const ValueResult result = form == ValueForm::Stored ? validator.fromRaw(field.index, record, text)
                                                         : validator.fromShown(field.index, record, text);
    const auto *fault = std::get_if<ValueFault>(&result);
    if (settable && fault != nullptr)
        return {.changed = false, .refusal = RefusalText::ofValue(field, *fault).text()};
    const QVariant value = fault == nullptr ? ValueCodec::boundary(field, std::get<StoredValue>(result)) : text;
    const bool holdsIt = fault == nullptr && RuleEvaluator(data).hasField(field.index) &&
                         FieldReader(data).value(field.index, record) == std::get<StoredValue>(result);
    if (holdsIt)
        return {};
    mSession.selectParent(field.structure, record);
    const MessageDiversion messages(mSession.events());
    bool ok = false;
    mSession.transformer().SetValue(field.id, value, record.number, true, ok);
    if (ok && !messages.text().isEmpty())
        mSession.console().message(messages.text());
    return {.changed = ok, .refusal = ok ? QString() : messages.text()};
}
