#pragma once

#include "loader_names.h"

#include <vector>

// Reads the files of fields in three rounds, since a field may name one that stands further down: what a field says of
// itself; the targets of references; rules, defaults and everything else that names other fields.
class FieldParser {
  public:
    explicit FieldParser(LoaderNames &names) : mNames(names) {}

    void readFile(const JsonReader &file);
    // To be called once, after the last file.
    void resolve();

  private:
    struct Pending {
        JsonReader reader;
        FieldIndex field;
    };

    void readField(const JsonReader &file, StructureIndex structure, JsonReader reader);
    void readContent(FieldDefinition &field, const JsonReader &reader) const;
    void readNumber(FieldDefinition &field, const JsonReader &reader) const;
    void readItems(FieldDefinition &field, const JsonReader &reader) const;
    void readTargets(const Pending &pending);
    void readNamedFields(const Pending &pending);
    void addToStructure(FieldDefinition &field);

    LoaderNames &mNames;
    std::vector<Pending> mPending;
};
