#pragma once

#include "radio_report.h"

// The sentences for the end of a radio operation: untranslated English with placeholders %0:S, %1:S ...
struct RadioText {
    QString prompt;
    QStringList parameters;

    // The prompt with its placeholders filled, in English.
    [[nodiscard]] QString filled() const;
};

namespace RadioReportText {
// What went wrong and what to check; an empty prompt where nothing did.
[[nodiscard]] RadioText fault(const RadioReport &report);
// "The connection failed while the radio was read." and so on; "" before the port is open and after the last stage.
[[nodiscard]] QString stage(LinkStage stage);
// Which content the radio has.
[[nodiscard]] QString outcome(RadioOutcome outcome);
// The numbers of ErrorCode in words.
[[nodiscard]] QString refusal(int errorCode);
} // namespace RadioReportText
