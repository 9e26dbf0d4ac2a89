#pragma once

#include "field_facts.h"
#include "form_sections.h"

#include <QString>

class HelpBook;

// The page of one form: the introduction, then a table of its fields, section by section.
class FormPage {
  public:
    FormPage(const Dictionary &dictionary, const FormDefinition &form, QString title);

    [[nodiscard]] QString fileName() const;
    // where: the form's place in the tree, "" for one that stands in none.
    void write(HelpBook &book, const QString &introduction, const QString &where) const;
    // The topics of its fields, for the search.
    void addTopics(HelpBook &book) const;
    [[nodiscard]] const std::vector<FormSection> &sections() const { return mSections; }

  private:
    [[nodiscard]] QString pageLinks() const;
    [[nodiscard]] QString section(std::size_t place) const;
    [[nodiscard]] QString table(const FormSection &section) const;
    [[nodiscard]] QString row(const FieldDefinition &field) const;
    [[nodiscard]] static QString repeated(const FormSection &section);

    QString mName;
    QString mTitle;
    FieldFacts mFacts;
    std::vector<FormSection> mSections;
};
