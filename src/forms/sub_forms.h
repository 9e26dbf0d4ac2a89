#pragma once

#include "sub_form_opener.h"

#include <QPointer>

class FormFactory;
class frmSubForm;

// Opens sub-forms, at most one at a time.
class SubForms final : public SubFormOpener {
  public:
    // factory outlives this.
    explicit SubForms(FormFactory &factory) : mFactory(factory) {}

    void OpenSubForm(const SubFormRequest &request, const FieldServices &services, QWidget *owner) override;

  private:
    FormFactory &mFactory;
    QPointer<frmSubForm> mOpen;
};
