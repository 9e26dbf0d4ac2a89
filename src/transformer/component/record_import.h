#pragma once

#include "refusal.h"
#include "value_validator.h"

#include <QHash>

#include <map>

class Translation;

// Rows of text into the records of one table. What a cell cannot take is left as it is and listed; locked cells are
// passed over.
class RecordImport {
  public:
    // translation: list items are understood in its language too.
    RecordImport(TierData &data, qint32 accessLevel, const Translation &translation);

    struct Rows {
        StructureIndex structure;
        qint32 parent = 0;
        std::vector<FieldIndex> fields; // by cell; invalid where there is no column for it
        std::vector<QStringList> rows;
        std::vector<qint32> targets; // records of the first rows; the others become new ones at the end
    };
    struct RefusedCell {
        std::size_t row = 0; // from 0
        std::size_t cell = 0;
        Refusal why;
    };
    struct Outcome {
        Changes changes; // already made
        qint32 changed = 0;
        qint32 added = 0;
        std::vector<RefusedCell> refused; // by row and cell
        std::size_t rowsLeft = 0;         // at the end, for want of room
        std::optional<RecordRefusal> noRoom;
    };
    // The targets exist.
    [[nodiscard]] Outcome run(const Rows &rows);

  private:
    void makeRecords(const Rows &rows, Outcome &outcome);
    void planIdentities(const Rows &rows, Outcome &outcome);
    void setCells(const Rows &rows, std::size_t row, Outcome &outcome);
    void setCell(const Rows &rows, std::size_t row, std::size_t cell, Outcome &outcome);
    [[nodiscard]] QString inEnglish(const FieldDefinition &field, const QString &text);
    void orderCells(const Rows &rows);

    TierData &mData;
    RecordEditor mEditor;
    qint32 mAccessLevel;
    const Translation &mTranslation;
    std::vector<std::size_t> mOrder;                           // of the cells of a row
    std::vector<RecordAddress> mRecords;                       // by row
    std::vector<qint32> mNewIdentities;                        // of the new records
    std::map<FieldIndex, QHash<QString, QString>> mTranslated; // item texts: translated to English
};
