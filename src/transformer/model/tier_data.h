#pragma once

#include "change.h"
#include "dictionary.h"
#include "record_table.h"

#include <optional>
#include <vector>

// The values of one tier: a plain store without rules. Copying gives an independent data set, so that a file or a radio
// image can be decoded aside and swapped in when it is whole.
//
// Reads outside the data (see exists) are a caller's error; only value() checks and raises error 9.
class TierData {
  public:
    // A new data set: the records of a new file, all fields at their defaults, of the newest version.
    TierData(const Dictionary &dictionary, TierIndex tier);

    [[nodiscard]] const Dictionary &dictionary() const { return *mDictionary; }
    [[nodiscard]] TierIndex tier() const { return mTier; }
    // Version level of these values; belongs to no change and no comparison.
    [[nodiscard]] qint32 versionLevel() const { return mVersionLevel; }
    void setVersionLevel(qint32 level) { mVersionLevel = level; }

    // Records of a structure. parent: 1-based for child structures, else 0. The radio counts 1 record (its number is
    // 0). 0 for a parent that does not exist.
    [[nodiscard]] qint32 recordCount(StructureIndex structure, qint32 parent = 0) const;
    // Over all parents.
    [[nodiscard]] qint32 totalRecordCount(StructureIndex structure) const;
    [[nodiscard]] bool exists(StructureIndex structure, RecordAddress record) const;
    // Every record of the structure over all parents, in order.
    [[nodiscard]] std::vector<RecordAddress> records(StructureIndex structure) const;
    // The nth record over all parents, from 1; an address that does not exist when there are fewer.
    [[nodiscard]] RecordAddress recordByTotal(StructureIndex structure, qint32 number) const;

    // The value of a stored field. Error 9 when the record does not exist or the field stores nothing.
    [[nodiscard]] StoredValue value(FieldIndex field, RecordAddress record) const;
    // Unchecked and fast: a number field or text field of a record that exists.
    [[nodiscard]] qint32 number(const FieldDefinition &field, RecordAddress record) const {
        return table(field.structure, record.parent).number(field, rowOf(record));
    }
    [[nodiscard]] const QString &text(const FieldDefinition &field, RecordAddress record) const {
        return table(field.structure, record.parent).text(field, rowOf(record));
    }
    // The raw write, without references or rules. Error 9 as value(), error 13 for a text in a number field and
    // the other way round.
    void setValue(FieldIndex field, RecordAddress record, const StoredValue &value);

    // The record's identity: its identity field, else its number.
    [[nodiscard]] qint32 identityOf(StructureIndex structure, RecordAddress record) const;
    // The record with that identity below the parent (0: no parent); nullopt when there is none.
    [[nodiscard]] std::optional<RecordAddress> recordByIdentity(StructureIndex structure, qint32 identity,
                                                                qint32 parent = 0) const;

    // Raw record operations; error 9 where the address does not fit. A record of a parent brings its image's children.
    void insertRecord(StructureIndex structure, RecordAddress record, const RecordImage &image);
    void removeRecord(StructureIndex structure, RecordAddress record);
    void moveRecord(StructureIndex structure, qint32 parent, qint32 from, qint32 to);
    [[nodiscard]] RecordImage recordImage(StructureIndex structure, RecordAddress record) const;
    // Makes a step as it stands.
    void apply(const Change &change);
    void apply(const Changes &changes);

    // Same records with same values; the version level is not compared.
    [[nodiscard]] bool sameValues(const TierData &other) const;

  private:
    [[nodiscard]] static qint32 rowOf(RecordAddress record) { return record.number == 0 ? 1 : record.number; }
    [[nodiscard]] const RecordTable &table(StructureIndex structure, qint32 parent) const {
        return mTables[structure.slot()][parent == 0 ? 0 : std::size_t(parent - 1)];
    }
    [[nodiscard]] RecordTable &table(StructureIndex structure, qint32 parent);
    [[nodiscard]] const FieldDefinition &checkedField(FieldIndex field, RecordAddress record) const;
    [[nodiscard]] RecordTable emptyTable(StructureIndex structure) const;
    [[nodiscard]] RecordRow rowAt(StructureIndex structure, RecordAddress record) const;
    void insertRow(StructureIndex structure, RecordAddress record, const RecordRow &row);
    void insertChildren(const RecordStructure &structure, qint32 number, const RecordImage &image);
    void removeChildren(const RecordStructure &structure, qint32 number);
    void moveChildren(const RecordStructure &structure, qint32 from, qint32 to);
    void fill();

    const Dictionary *mDictionary;
    TierIndex mTier;
    qint32 mVersionLevel;
    std::vector<std::vector<RecordTable>> mTables; // by structure; one table, or one for each parent record
};
