#include "final_checks.h"

#include "cross_checks.h"
#include "rule_evaluator.h"
#include "value_validator.h"

#include <algorithm>

void FinalChecks::checkValues(std::vector<Finding> &findings) const {
    const RuleEvaluator rules(mReader.data());
    const ValueValidator validator(mReader.data());
    for (const RecordStructure &structure : mReader.dictionary().structures()) {
        const std::vector<RecordAddress> records = mReader.data().records(structure.index);
        for (const FieldIndex index : structure.stored) {
            const FieldDefinition &field = mReader.dictionary().field(index);
            if (!rules.hasField(index))
                continue;
            for (const RecordAddress record : records) {
                // A field that is out of force keeps whatever it had.
                const auto fault = validator.check(index, record, mReader.data().value(index, record));
                if (fault && rules.holds(field.enabledWhen, field.structure, record))
                    findings.push_back({Finding::Severity::Error, index, record, RefusalText::ofValue(field, *fault)});
            }
        }
    }
}

std::vector<Finding> FinalChecks::run() const {
    std::vector<Finding> findings;
    checkValues(findings);
    CrossChecks::run(mReader, findings);
    return findings;
}

std::vector<Finding> FinalChecks::run(const QString &form) const {
    std::vector<Finding> findings = run();
    const std::span<const FieldIndex> fields = mReader.dictionary().fieldsOfForm(form);
    std::erase_if(findings, [fields](const Finding &finding) {
        return std::ranges::find(fields, finding.field) == fields.end();
    });
    return findings;
}
