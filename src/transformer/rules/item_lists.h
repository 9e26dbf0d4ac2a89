#pragma once

#include "field_reader.h"

// One entry of a combo or ID list.
struct FieldItem {
    QString text;     // English, shown
    qint32 value = 0; // stored
};

// The items of list, choice, reference and identity fields for a record.
class ItemLists {
  public:
    explicit ItemLists(const TierData &data) : mReader(data) {}

    // All items that the record may take now, in order. Empty for other kinds, and for a record that does not exist
    // unless the items are the same in every record. An identity offers its own number and the next free ones.
    [[nodiscard]] std::vector<FieldItem> items(FieldIndex field, RecordAddress record) const;
    // True: the list is not the same for every record (scope 2 of a combo list).
    [[nodiscard]] bool differsByRecord(FieldIndex field) const;
    // Whether the stored value is among the items; for identities: in range and free or the record's own. Cheaper than
    // items().
    [[nodiscard]] bool contains(FieldIndex field, RecordAddress record, qint32 value) const;

  private:
    [[nodiscard]] std::vector<FieldItem> fixedItems(const FieldDefinition &field, RecordAddress record) const;
    [[nodiscard]] std::vector<FieldItem> targets(const FieldDefinition &field, RecordAddress record) const;
    [[nodiscard]] std::vector<FieldItem> identities(const FieldDefinition &field, RecordAddress record) const;

    FieldReader mReader;
};
