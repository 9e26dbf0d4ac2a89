#pragma once

#include "dictionary.h"

#include <QByteArray>
#include <QString>

#include <memory>
#include <vector>

// A JSON file of the dictionary. tiers.json, structures.json and lists.json (may be missing) are told by their names;
// every other file is one of fields, in the given order.
struct DictionaryFile {
    QString name;
    QByteArray text;
};

// Reads and checks the field dictionary; README.md beside this file is the format.
namespace DictionaryLoader {
// The files that are compiled in, field files in the order of their names.
[[nodiscard]] std::vector<DictionaryFile> compiledInFiles();

// Raises a RunTimeError (number 5) whose description names file, field or structure, and key, for the first thing that
// is wrong: an unknown or missing key, a duplicate id, a name that nothing defines, a default outside its limits or
// list, a memory place outside its record or over another, a label over 24 characters, a cycle.
[[nodiscard]] std::unique_ptr<const Dictionary> load(const std::vector<DictionaryFile> &files);
[[nodiscard]] std::unique_ptr<const Dictionary> loadCompiledIn();
} // namespace DictionaryLoader
