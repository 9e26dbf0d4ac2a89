#pragma once

#include "form_definition.h"

#include <QHash>
#include <QStringList>

#include <map>

// The forms that are compiled in. A definition is read when it is first asked for and then kept: references stay good
// for the catalogue's life. Names are compared without regard to case.
class FormCatalogue {
  public:
    FormCatalogue();

    // In alphabetical order, spelt as in the definitions.
    [[nodiscard]] const QStringList &names() const { return mNames; }
    [[nodiscard]] bool contains(const QString &name) const;
    // Raises error 35601 for an unknown name, 5 for a definition that is not right.
    [[nodiscard]] const FormDefinition &form(const QString &name);

  private:
    QStringList mNames;
    std::map<QString, FormDefinition> mRead; // by lower-case name
};
