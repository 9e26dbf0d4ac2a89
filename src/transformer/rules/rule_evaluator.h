#pragma once

#include "field_reader.h"

// Whether fields can be edited.
class RuleEvaluator {
  public:
    explicit RuleEvaluator(const TierData &data) : mReader(data) {}

    // The rule for a record of the structure. The record exists.
    [[nodiscard]] bool holds(const Rule &rule, StructureIndex structure, RecordAddress record) const;
    // The tier and the data's version level have the field.
    [[nodiscard]] bool hasField(FieldIndex field) const;
    [[nodiscard]] bool hasItem(const ListItem &item) const;
    // Tier, version, access level (20, 40, 60 or 80), read-only and rule together. False for a record that does not
    // exist.
    [[nodiscard]] bool isEnabled(FieldIndex field, RecordAddress record, qint32 accessLevel) const;

  private:
    [[nodiscard]] bool compares(const Rule &rule, StructureIndex structure, RecordAddress record) const;
    [[nodiscard]] bool counts(const Rule &rule, StructureIndex structure, RecordAddress record) const;
    [[nodiscard]] bool someRecord(const Rule &rule) const;

    FieldReader mReader;
};
