#pragma once

#include "final_checks.h"
#include "rule_evaluator.h"

#include <array>

// What a check across fields works with. Fields that the dictionary, the tier or the version lacks are never handed
// out, so that a check of theirs finds nothing.
class CrossCheck {
  public:
    using Severity = Finding::Severity;

    CrossCheck(const FieldReader &theReader, std::vector<Finding> &findings)
        : reader(theReader), mRules(theReader.data()), mFindings(findings) {}

    const FieldReader &reader;

    [[nodiscard]] std::optional<FieldIndex> field(const QString &id) const;
    // All of them; nullopt when one is not there.
    template <std::size_t N>
    [[nodiscard]] std::optional<std::array<FieldIndex, N>> fields(const QString (&ids)[N]) const;

    [[nodiscard]] qint32 number(FieldIndex field, RecordAddress record = {}) const {
        return reader.data().value(field, record).number();
    }
    // The enable rule holds: the value acts in the radio.
    [[nodiscard]] bool inForce(FieldIndex field, RecordAddress record) const;
    [[nodiscard]] const QString &label(FieldIndex field) const { return reader.dictionary().field(field).label; }
    [[nodiscard]] std::vector<RecordAddress> recordsOf(FieldIndex field) const {
        return reader.data().records(reader.dictionary().field(field).structure);
    }
    void add(Severity severity, FieldIndex field, RecordAddress record, QString prompt, QStringList parameters) const {
        mFindings.push_back({severity, field, record, {std::move(prompt), std::move(parameters)}});
    }

  private:
    RuleEvaluator mRules;
    std::vector<Finding> &mFindings;
};

template <std::size_t N>
std::optional<std::array<FieldIndex, N>> CrossCheck::fields(const QString (&ids)[N]) const {
    std::array<FieldIndex, N> result;
    for (std::size_t i = 0; i < N; ++i) {
        const std::optional<FieldIndex> found = field(ids[i]);
        if (!found)
            return std::nullopt;
        result[i] = *found;
    }
    return result;
}
