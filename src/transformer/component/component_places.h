#pragma once

#include <QString>

// Where a component keeps what outlives it. An empty name switches the thing off.
struct ComponentPlaces {
    QString settingsFile;
    QString journalFolder;        // one file for each running window
    QString stateFolder;          // run records and wire traces
    QString restoreFolder;        // restore points, a folder for each radio
    QString dataFolder;           // what GetDataDirectory answers
    QString translationFile = {}; // texts of the other languages, which pasted list items may be in

    // The user's folders.
    [[nodiscard]] static ComponentPlaces ofUser();
    // The same without settings and journals: for tools that leave no trace of their own.
    [[nodiscard]] static ComponentPlaces ofTool();
};
