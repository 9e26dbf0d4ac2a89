#pragma once

#include "strong_index.h"

#include <QString>
#include <QStringList>

#include <vector>

// How many records a structure has in one tier; in a child structure for each parent record.
struct RecordCapacity {
    qint32 least = 0;
    qint32 fresh = 0; // records of a new data set (of a new parent)
    qint32 most = 0;  // 0: the tier lacks the structure
};

// Which record commands the user has.
struct RecordCommands {
    bool add = false;
    bool insert = false;
    bool repeat = false;
    bool remove = false;
};

// A kind of record. The radio itself is the one structure without a guide: one record, number 0.
struct RecordStructure {
    StructureIndex index;
    QString name;      // "Channel"
    QString label;     // "Channel": what a message calls one record; the name unless the file says otherwise
    QString guide;     // UIID that stands for the structure in record operations; "" for the radio
    QString position;  // UIID of the stored position; "" when it has none
    QStringList grids; // grid ids

    // A child structure has a table for each record of its parent. With perParent not 0 it is one flat table instead,
    // with perParent records for each record of the parent, which come and go with it: records (p - 1) * perParent + 1
    // to p * perParent belong to the parent's record p.
    StructureIndex parent;
    qint32 perParent = 0;

    std::vector<RecordCapacity> capacity; // by tier
    bool fixed = false;                   // the number of records never changes by itself
    RecordCommands commands;
    QString navigatorLabel;   // "Channel"
    QString navigatorRecords; // "Channels"
    qint32 recordBytes = 0;   // of one record in the radio's memory

    // Worked out at load.
    std::vector<FieldIndex> fields;       // all fields, in file order
    std::vector<FieldIndex> stored;       // the fields that hold a value of their own, in file order
    FieldIndex identity;                  // the field of kind identity; invalid: a record's identity is its number
    FieldIndex recordNumber;              // the field of kind recordNumber, if there is one
    std::vector<StructureIndex> children; // structures whose parent this is, flat ones too

    [[nodiscard]] bool isRadio() const { return guide.isEmpty(); }
    [[nodiscard]] bool isFlat() const { return perParent > 0; }
    // True: a table for each parent record, and addresses carry the parent's number.
    [[nodiscard]] bool isScoped() const { return parent.isValid() && !isFlat(); }
    [[nodiscard]] const RecordCapacity &in(TierIndex tier) const { return capacity[tier.slot()]; }
};
