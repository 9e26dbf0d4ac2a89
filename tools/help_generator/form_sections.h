#pragma once

#include "dictionary.h"
#include "form_definition.h"

#include <QString>
#include <QStringList>

#include <vector>

// The fields of one form in reading order, in sections: a page, and in it a frame or a grid.
struct FormSection {
    QString page;                                  // caption; "" on a form without pages
    QString heading;                               // captions of the frames, outer first; "" outside all frames
    std::vector<const FieldDefinition *> fields;   // never empty, unless the columns stand elsewhere too
    std::vector<const FieldDefinition *> repeated; // columns of a grid whose fields stand on the form themselves
};

// Controls whose id is no field of the dictionary (the record numbers of navigators) are left out.
[[nodiscard]] std::vector<FormSection> formSections(const FormDefinition &form, const Dictionary &dictionary);
