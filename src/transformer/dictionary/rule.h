#pragma once

#include "strong_index.h"

#include <QString>
#include <QStringList>

#include <vector>

// A condition over the values of one record and of what hangs together with it. Names and item texts of the file have
// been resolved at load.
//
// A field that stands in another structure than the record is that of the radio itself or of the parent record (of the
// record that a flat record belongs to); the loader refuses others.
struct Rule {
    enum class Kind {
        Always,
        All,      // every inner rule; true when there is none
        Any,      // one inner rule; false when there is none
        Not,      // not the one inner rule
        Compare,  // field against values, bound or texts; with via the field of the record that via refers to
        Records,  // number of records of structure (in the record's scope) above bound or below bound
        Some,     // one record of structure (over all parents) fulfils the inner rule
        Function, // a named check, see named_functions.h
    };
    enum class Test {
        Is,       // numbers: one of values; texts: one of texts
        IsNot,    // none of them
        Above,    // stored number above bound
        Below,    // stored number below bound
        Empty,    // text is empty
        NotEmpty, // text is not empty
        Contains, // text contains one of texts
    };

    Kind kind = Kind::Always;
    Test test = Test::Is;
    std::vector<Rule> inner;
    FieldIndex field;
    FieldIndex via; // a reference to None makes the comparison false
    StructureIndex structure;
    std::vector<qint32> values; // stored numbers
    QStringList texts;
    qint32 bound = 0;
    QString function;
    std::vector<FieldIndex> reads; // Function: the fields it reads, for the reverse index
};
