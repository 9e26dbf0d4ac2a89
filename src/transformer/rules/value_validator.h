#pragma once

#include "field_reader.h"
#include "refusal.h"

#include <QVariant>

// Checks and normalises a new value of a field in a record, in each of its forms: range, raster, mask, length, list of
// the record, uniqueness of an identity, existence of a reference's target. Access and enable rules are not its matter.
// The record exists.
class ValueValidator {
  public:
    explicit ValueValidator(const TierData &data) : mReader(data) {}

    [[nodiscard]] ValueResult fromBoundary(FieldIndex field, RecordAddress record, const QVariant &value) const;
    [[nodiscard]] ValueResult fromShown(FieldIndex field, RecordAddress record, const QString &text) const;
    [[nodiscard]] ValueResult fromRaw(FieldIndex field, RecordAddress record, const QString &text) const;
    // A stored value; nullopt when it is good.
    [[nodiscard]] std::optional<ValueFault> check(FieldIndex field, RecordAddress record,
                                                  const StoredValue &value) const;

  private:
    [[nodiscard]] ValueResult inRecord(FieldIndex field, RecordAddress record, ValueResult parsed) const;
    [[nodiscard]] std::optional<ValueResult> byRecordItem(FieldIndex field, RecordAddress record,
                                                          const QString &text) const;

    FieldReader mReader;
};
