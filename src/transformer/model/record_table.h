#pragma once

#include "change.h"
#include "dictionary.h"
#include "identity_index.h"

// The records of one structure below one parent, a column for each stored field. Numbers count from 1 here too;
// callers have checked them.
class RecordTable {
  public:
    RecordTable() = default;
    RecordTable(qint32 numberColumns, qint32 textColumns);

    [[nodiscard]] qint32 count() const { return mCount; }
    [[nodiscard]] qint32 number(const FieldDefinition &field, qint32 record) const {
        return mNumbers[std::size_t(field.column)][std::size_t(record - 1)];
    }
    [[nodiscard]] const QString &text(const FieldDefinition &field, qint32 record) const {
        return mTexts[std::size_t(field.column)][std::size_t(record - 1)];
    }
    [[nodiscard]] StoredValue value(const FieldDefinition &field, qint32 record) const;
    void setValue(const FieldDefinition &field, qint32 record, const StoredValue &value);
    // The first record with that identity; field: the structure's identity.
    [[nodiscard]] std::optional<qint32> findIdentity(const FieldDefinition &field, qint32 identity) const {
        return mIdentities.find(identity, mNumbers[std::size_t(field.column)]);
    }

    // The row is in the order of structure.stored.
    void insert(qint32 record, const Dictionary &dictionary, const RecordStructure &structure, const RecordRow &row);
    void remove(qint32 record);
    void move(qint32 from, qint32 to);
    bool operator==(const RecordTable &) const = default;

  private:
    qint32 mCount = 0;
    std::vector<std::vector<qint32>> mNumbers;
    std::vector<std::vector<QString>> mTexts;
    mutable IdentityIndex mIdentities;
};
