#pragma once

#include "rule.h"
#include "strong_index.h"
#include "tier_definition.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <utility>
#include <vector>

enum class FieldKind {
    Number,       // text field; stored as a whole number of 10^-decimals units
    Text,         // text field; stored as text
    List,         // combo; stored is an item's value
    Flag,         // check box; stored 0 or 1
    Choice,       // ID tracker over a fixed list; stored is an item's value, the component's value is its text
    Reference,    // ID tracker over records; stored is the target's identity, 0 for None
    Identity,     // ID tracker; the record's own number, unique in its table
    RecordNumber, // read-only, not stored: the record's number, or the list item of that place
    Derived,      // read-only, not stored: a named function
};

// What becomes of a reference when its target is deleted.
enum class TargetGone { SetNone, Refuse, DeleteRecord };

// An item of a list or choice.
struct ListItem {
    QString text;     // English
    qint32 value = 0; // what is stored
    qint32 level = 0; // lowest version level that has it
    TierMask tiers = TierMask::all();
};

// Where a value stands in its record's part of the radio's memory, little-endian.
struct MemoryPlace {
    qint32 byte = 0;  // from 0
    qint32 bytes = 0; // 0 for a single bit
    qint32 bit = -1;  // 0 to 7 for a single bit, else -1
};

// Limits of a number in stored units. A value must be minimum plus a multiple of step; with rasters instead a multiple
// of one of them.
struct NumberLimits {
    qint32 minimum = 0;
    qint32 maximum = 0;
    qint32 step = 1;
    std::vector<qint32> rasters;
};

// A table over the stored value of another field: its items from 0 on. Values beyond the table take the last row.
struct LimitsTable {
    FieldIndex field;
    std::vector<std::pair<qint32, qint32>> limits; // minimum and maximum, stored units
};
struct DefaultsTable {
    FieldIndex field; // invalid: no table
    std::vector<qint32> values;
};

// Targets of a reference.
struct ReferenceTargets {
    std::vector<StructureIndex> structures; // in the order of their places in the stored value
    QStringList texts;                      // "Channel %1" by place; empty: the identity alone
    bool hasNone = false;
    TargetGone whenGone = TargetGone::SetNone;

    // With several structures, place times 65536 plus the identity; 0 is None in either case.
    static constexpr qint32 kPlaceFactor = 65536;
    [[nodiscard]] bool isMixed() const { return structures.size() > 1; }
    // Structure and identity of a stored value; an invalid structure for None and for a place that does not exist.
    [[nodiscard]] StructureIndex structureOf(qint32 stored) const;
    [[nodiscard]] qint32 identityOf(qint32 stored) const { return isMixed() ? stored % kPlaceFactor : stored; }
    // What is stored for a record of one of the structures.
    [[nodiscard]] qint32 stored(StructureIndex structure, qint32 identity) const;
};

// Everything that is known about one field. Values are stored values (see the kinds) unless it says otherwise.
struct FieldDefinition {
    FieldIndex index;
    QString id; // UIID
    QString label;
    QString help;
    FieldKind kind = FieldKind::Number;
    StructureIndex structure;
    QString form;       // class name of the form that it belongs to; "" for a guide that stands on none
    QStringList alsoOn; // further forms that show it

    qint32 access = 40;               // 20, 40, 60 or 80: the lowest level that may edit it
    qint32 level = 0;                 // lowest version level that has it; levelIn() regards the tier too
    bool disableWhenAbsent = false;   // greyed, not hidden, where the version lacks it
    TierMask tiers = TierMask::all(); // a tier whose capacity of the structure is 0 is not among them
    std::optional<MemoryPlace> at;    // nullopt: not in the radio's memory
    bool fact = false;                // of the radio: a read takes it over, a program never writes it
    bool readOnly = false;
    bool hidden = false; // stands on no form as a field

    qint32 defaultNumber = 0;     // of numbers, lists, flags, choices, references
    QString defaultText;          // of texts
    DefaultsTable defaultBy;      // beats defaultNumber when its field is valid
    bool defaultNextFree = false; // an identity: the lowest free number; a choice: the first item that its scope leaves

    NumberLimits limits; // of a number or an identity, without regard to limitsBy
    std::optional<LimitsTable> limitsBy;
    qint32 decimals = 0;
    QString unit;
    qint32 offer = 100; // of an identity: how many free numbers its list offers

    QString mask;      // of a text: the characters that may stand in it; "" for all
    qint32 length = 0; // of a text: greatest length
    qint32 width = 0;  // characters of the longest shown value

    std::vector<ListItem> items;  // of a list or choice, or the row names of a recordNumber
    bool itemsHaveValues = false; // the stored value is not the item's place
    ReferenceTargets to;
    QString scope;                 // named function that narrows items or targets for a record
    QString function;              // of a derived field
    std::vector<FieldIndex> reads; // what function or scope reads

    Rule enabledWhen;
    FieldIndex resetWhenChanges; // a change of that field sets this one to its default
    FieldIndex follows;          // takes that field's new value when both were equal before the edit
    qint32 followsInRow = 0;     // of a child structure that follows its parent: only in the record of this number
    qint32 helpNumber = 0;

    qint32 column = -1; // place among the structure's number columns or text columns; -1: not stored

    // Version level of a field or item that a tier never has.
    static constexpr qint32 kNever = 99;
    // Decimals of a frequency: stored in hertz, shown in MHz.
    static constexpr qint32 kFrequencyDecimals = 6;

    [[nodiscard]] bool isStored() const { return column >= 0; }
    [[nodiscard]] bool isTextual() const { return kind == FieldKind::Text; }
    [[nodiscard]] bool isNumeric() const { return kind == FieldKind::Number || kind == FieldKind::Identity; }
    [[nodiscard]] bool hasItems() const { return kind == FieldKind::List || kind == FieldKind::Choice; }
    [[nodiscard]] bool hasIdItems() const {
        return kind == FieldKind::Choice || kind == FieldKind::Reference || kind == FieldKind::Identity;
    }
    [[nodiscard]] qint32 levelIn(TierIndex tier) const { return tiers.contains(tier) ? level : kNever; }
    // Characters tested per keystroke: mask of a text, digits (with "." and "-" where they can occur) of a number.
    [[nodiscard]] QString validationString() const;
    // The item with a stored value or a text; null when there is none.
    [[nodiscard]] const ListItem *itemByValue(qint32 value) const;
    [[nodiscard]] const ListItem *itemByText(const QString &text) const;
};
