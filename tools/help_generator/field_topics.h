#pragma once

#include "field_facts.h"

#include <QHash>
#include <QString>

class HelpBook;

// One small file for each help number of a field: it says what the field is and leads on to its row on the page of its
// form.
class FieldTopics {
  public:
    // titles: those of all forms by class name.
    FieldTopics(const Dictionary &dictionary, const QHash<QString, QString> &titles);
    void write(HelpBook &book) const;

  private:
    // The form that shows the field; a field that stands on none is looked after by the form of its records.
    [[nodiscard]] QString formOf(const FieldDefinition &field) const;
    [[nodiscard]] QString details(const FieldDefinition &field) const;

    const Dictionary &mDictionary;
    const QHash<QString, QString> &mTitles;
    FieldFacts mFacts;
};
