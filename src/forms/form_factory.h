#pragma once

#include "control_registry.h"
#include "form_catalogue.h"
#include "sub_forms.h"

class DataForm;
class QWidget;

// Makes forms by their names, which are compared without regard to case: those of the catalogue, and the calibration
// form "usrctlCalSpecifications", which has an enabler and no fields.
class FormFactory {
  public:
    FormFactory();
    Q_DISABLE_COPY_MOVE(FormFactory)

    // Further control classes may be entered here; those of the fields, frames and buttons are there.
    [[nodiscard]] ControlRegistry &Registry() { return mRegistry; }

    // There is such a form, and each of its controls can be made.
    [[nodiscard]] bool CanCreate(const QString &name);
    // The form, hidden, as a child of parent. Raises error 35601 for an unknown name or a control that cannot be made;
    // then nothing is left behind.
    [[nodiscard]] DataForm *CreateForm(const QString &name, const FieldServices &services, QWidget *parent);
    // The catalogue's, or the calibration form. Raises error 35601 for an unknown name.
    [[nodiscard]] const FormDefinition &DefinitionOf(const QString &name);

  private:
    [[nodiscard]] bool isKnown(const QString &name) const;

    FormCatalogue mCatalogue;
    FormDefinition mCalibration;
    ControlRegistry mRegistry;
    SubForms mSubForms{*this};
};
