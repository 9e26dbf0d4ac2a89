#pragma once

#include "field_setter.h"

#include <set>
#include <vector>

// A cell of the table that the data does not take.
struct RefusedCell {
    qint32 row = 0; // from 1, behind the heads
    QString column; // "": the whole row
    QString reason;
};

// The columns of a table of records: fields by UIID or label, with the parent's number before them in a child
// structure.
struct ImportColumns {
    bool hasParent = false;
    std::vector<const FieldDefinition *> fields;

    // Raises UsageError for a head that is no field of the structure or stands twice.
    [[nodiscard]] static ImportColumns of(const Dictionary &dictionary, const RecordStructure &structure,
                                          const QStringList &heads);
};

// Puts the rows of a table into the records of a structure: the nth row (of its parent) into the nth record, further
// ones into new records. Columns that the table lacks keep their values; records beyond the table stay.
class TableImport {
  public:
    TableImport(ToolSession &session, const RecordStructure &structure, ImportColumns columns,
                const std::vector<QStringList> &rows);

    // One try on the data as it stands, without the rows of leftOut. What it answers with was not taken; the data has
    // the rest.
    [[nodiscard]] std::vector<RefusedCell> run(const std::set<qint32> &leftOut);

  private:
    struct Row {
        qint32 number = 0;
        RecordAddress record;
        QStringList cells;
    };
    void place(qint32 number, const QStringList &cells, const std::set<qint32> &leftOut);
    [[nodiscard]] qint32 parentOf(const QStringList &cells) const;
    [[nodiscard]] qint32 addRecord(qint32 parent);
    void settle();
    [[nodiscard]] bool setAll();
    [[nodiscard]] bool freeIdentities();
    void refuseRow(qint32 row, const QString &reason) { mRefused.push_back({row, QString(), reason}); }

    ToolSession &mSession;
    const RecordStructure &mStructure;
    ImportColumns mColumns;
    const std::vector<QStringList> &mTable;
    FieldSetter mSetter;
    std::vector<Row> mRows;
    std::vector<qint32> mFound;   // records before the import, by parent
    std::vector<qint32> mCounted; // rows so far, by parent
    std::vector<RefusedCell> mRefused;
};
