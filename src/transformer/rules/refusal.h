#pragma once

#include "record_editor.h"
#include "value_codec.h"

#include <QStringList>

// A message for the user: English with placeholders %0:S ..., and their values. Goes through
// TransformerEvents_MsgBox as prompt() and parameters joined by "|".
struct Refusal {
    QString prompt;
    QStringList parameters;

    // Filled in, in English.
    [[nodiscard]] QString text() const;
    // As a parameter of another message, translated part by part.
    [[nodiscard]] QString piece() const;
};

// The one place that words refusals; each says what is allowed.
namespace RefusalText {
[[nodiscard]] Refusal ofValue(const FieldDefinition &field, const ValueFault &fault);
[[nodiscard]] Refusal ofRecord(const TierData &data, const RecordRefusal &refusal);
} // namespace RefusalText
