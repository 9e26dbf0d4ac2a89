#pragma once

#include "xarray_db.h"

#include <QString>

#include <functional>

// Asks for the items of a record's list, texts in column 0; scope becomes 2 where they differ from record to record.
using AskForComboItems = std::function<void(qint32 record, XArrayDB &items, qint32 &scope)>;

// Replaces the stored values in a column of rows by item texts, "Undefined" where no item is meant. Row 0 is record 1.
// map: the values that the items store, joined by "|" in their order; "" where a value is its item's position. A value
// that no item stores counts as a position. Answers the items of the last list asked for, empty without rows.
XArrayDB comboColumnToUI(XArrayDB &rows, qint32 column, const QString &map, const AskForComboItems &askForItems);
