#pragma once

#include "field_reader.h"
#include "refusal.h"

// One thing that is wrong with the data as a whole.
struct Finding {
    enum class Severity { Error, Warning }; // refuses; asks
    Severity severity = Severity::Error;
    FieldIndex field; // its form and label say where
    RecordAddress record;
    Refusal message;
};

// The checks of a tier's whole data before it goes to a file or a radio. Only fields that tier and version have are
// looked at.
class FinalChecks {
  public:
    explicit FinalChecks(const TierData &data) : mReader(data) {}

    // All findings in the order of checks and records: every stored value against its definition, then the checks
    // across fields. Empty: the data is fit for a radio.
    [[nodiscard]] std::vector<Finding> run() const;
    // Only those that concern a field of the form.
    [[nodiscard]] std::vector<Finding> run(const QString &form) const;

  private:
    void checkValues(std::vector<Finding> &findings) const;

    FieldReader mReader;
};
