#pragma once

#include "record_editor.h"
#include "small_dictionary.h"

// One tier's data of the small dictionary, with short ways to its fields. The full tier unless another is named.
struct ModelFixture {
    std::unique_ptr<const Dictionary> dictionary = SmallDictionary::make();
    TierData data{*dictionary, TierIndex(1)};
    RecordEditor editor{data};

    [[nodiscard]] FieldIndex field(const char *id) const { return dictionary->indexOf(QString::fromLatin1(id)); }
    [[nodiscard]] StructureIndex structure(const char *name) const {
        return *dictionary->structureByName(QString::fromLatin1(name));
    }
    [[nodiscard]] qint32 number(const char *id, RecordAddress record = {}) const {
        return data.value(field(id), record).number();
    }
    [[nodiscard]] QString text(const char *id, RecordAddress record = {}) const {
        return data.value(field(id), record).text();
    }
    Changes set(const char *id, RecordAddress record, const StoredValue &value) {
        return editor.setValue(field(id), record, value);
    }
    // Appends records of defaults.
    void append(const char *name, qint32 count, qint32 parent = 0) {
        for (qint32 i = 0; i < count; ++i) {
            const StructureIndex index = structure(name);
            (void)editor.insertRecord(index, {parent, data.recordCount(index, parent) + 1});
        }
    }
};
