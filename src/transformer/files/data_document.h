#pragma once

#include "data_set.h"
#include "unknown_fields.h"

#include <QString>

// The header of a data file, as the open dialog shows it.
struct DataFileHeader {
    qint32 formatVersion = 1;
    QString tier;            // key of the current tier
    QString radioModel;      // caption of the current tier
    QString databaseVersion; // name of the current tier's version, "3.20"
    QString applicationVersion;
    QString date; // UTC, ISO 8601
    qint32 networks = 0;
    QString comment;
};

// All that one data file holds.
struct DataDocument {
    explicit DataDocument(const Dictionary &dictionary) : data(dictionary) {}

    DataSet data;
    UnknownFields unknown;
};

namespace DataDocuments {
// Newest format version that this program reads, and the one that it writes.
inline constexpr qint32 kFormatVersion = 1;
// True where the values of all tiers, their version levels and the current tier are the same.
[[nodiscard]] bool sameContent(const DataSet &left, const DataSet &right);
} // namespace DataDocuments
