#pragma once

#include "dictionary.h"

#include <QString>

// What the dictionary says of a field, in words for the help; nothing is escaped.
class FieldFacts {
  public:
    // The dictionary outlives it.
    explicit FieldFacts(const Dictionary &dictionary) : mDictionary(dictionary) {}

    // "Off or on", "1 to 60, in steps of 5", the items of a list, ...
    [[nodiscard]] QString values(const FieldDefinition &field) const;
    // "" where the field holds no value of its own.
    [[nodiscard]] QString defaultValue(const FieldDefinition &field) const;
    // Models, database version and access level that it needs, where these are not what every field needs.
    [[nodiscard]] QString needs(const FieldDefinition &field) const;
    // "Standard and Advanced"; "" for all.
    [[nodiscard]] QString models(const TierMask &tiers) const;

  private:
    [[nodiscard]] QString numbers(const FieldDefinition &field) const;
    [[nodiscard]] QString items(const FieldDefinition &field) const;
    [[nodiscard]] QString targets(const FieldDefinition &field) const;
    [[nodiscard]] QString itemOf(FieldIndex field, qsizetype place) const;

    const Dictionary &mDictionary;
};
