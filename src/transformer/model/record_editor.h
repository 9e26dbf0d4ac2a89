#pragma once

#include "tier_data.h"

#include <functional>
#include <optional>

// Why a record operation is not done. Nothing has changed then.
struct RecordRefusal {
    enum class Reason {
        NoSuchRecord,
        Full,         // the capacity is reached: most
        AtLeast,      // the structure must keep its least number of records: least
        FixedRows,    // the number of records is not the user's
        NoFreeNumber, // no identity is free
        InUse,        // a reference without None holds on to it: usedBy, user
    };
    Reason reason = Reason::NoSuchRecord;
    StructureIndex structure;
    qint32 limit = 0;   // Full: most; AtLeast: least
    FieldIndex usedBy;  // InUse: the reference field
    RecordAddress user; // InUse: the record that has it
};

// What a record operation did, or why not.
struct RecordResult {
    Changes changes;      // all steps, in order; already made
    RecordAddress record; // insert, copy: the new record
    std::optional<RecordRefusal> refusal;
    [[nodiscard]] bool done() const { return !refusal.has_value(); }
};

// The edits of a tier's data with everything that must go along: references follow identities and shifting numbers,
// children move with their parents, dependent fields are reset. It checks capacities and uses, but no rules of values:
// those have been checked (see ValueValidator). Each operation is made at once and answers with its steps, so that one
// journal can keep and undo them; a refused one changes nothing.
class RecordEditor {
  public:
    explicit RecordEditor(TierData &data) : mData(data) {}

    // Sets a stored value with its consequences: references to a changed identity, resets of dependent fields, fields
    // that follow. An unchanged value gives no steps. Error 9 for a record that does not exist.
    Changes setValue(FieldIndex field, RecordAddress record, const StoredValue &value);

    // New identities of records of one table, at once: two records may exchange theirs. They are free and in range.
    Changes renumber(StructureIndex structure, const std::vector<std::pair<RecordAddress, qint32>> &identities);
    // Records of defaults behind the last one, one for each identity; in structures without identities their number
    // alone counts. The identities are free and in range. Refused as a whole where they have no room.
    RecordResult appendRecords(StructureIndex structure, qint32 parent, const std::vector<qint32> &identities);

    // A new record of defaults; number 1 to count + 1, count + 1 appends.
    RecordResult insertRecord(StructureIndex structure, RecordAddress record);
    // A copy of the record right behind it, with its children and with an identity of its own.
    RecordResult copyRecord(StructureIndex structure, RecordAddress record);
    RecordResult deleteRecord(StructureIndex structure, RecordAddress record);
    RecordResult moveRecord(StructureIndex structure, qint32 parent, qint32 from, qint32 to);
    // A new order of a table: order[i] is the present number of the record that becomes number i + 1. Error 5 when it
    // is no permutation.
    RecordResult reorder(StructureIndex structure, qint32 parent, const std::vector<qint32> &order);

  private:
    using Renumber = std::function<qint32(qint32)>; // present record number to new one; 0: gone

    void make(Changes &changes, Change change);
    void set(Changes &changes, FieldIndex field, RecordAddress record, const StoredValue &value);
    void setDependents(Changes &changes, FieldIndex field, RecordAddress record, const StoredValue &before);
    void followIdentity(Changes &changes, StructureIndex structure, const Renumber &renumber);
    void followNumbers(Changes &changes, const RecordStructure &structure, const Renumber &renumber);
    void releaseTarget(Changes &changes, const RecordStructure &structure, RecordAddress record);
    void removeWhole(Changes &changes, const RecordStructure &structure, RecordAddress record);
    [[nodiscard]] std::optional<RecordRefusal> mayInsert(const RecordStructure &structure, RecordAddress record) const;
    [[nodiscard]] std::optional<RecordRefusal> mayDelete(const RecordStructure &structure, RecordAddress record) const;
    [[nodiscard]] std::optional<RecordRefusal> useOf(const RecordStructure &structure, RecordAddress record) const;
    RecordResult insertImage(const RecordStructure &structure, RecordAddress record, RecordImage image);

    TierData &mData;
};
