#include "form_factory.h"

#include "data_form.h"
#include "fld_sub_form_call_up.h"

#include <algorithm>

FormFactory::FormFactory() {
    mRegistry.Add(QStringLiteral("fldSubFormCallUp"),
                  [this](const FieldServices &services, const FieldProperties &properties, QWidget *parent) {
                      return new fldSubFormCallUp(services, properties, mSubForms, parent);
                  });
}

bool FormFactory::CanCreate(const QString &name) {
    if (!mCatalogue.contains(name))
        return false;
    return std::ranges::all_of(mCatalogue.form(name).placedControls(), [&](const PlacedControl &placed) {
        return placed.control->typeName == u"SSTab" || mRegistry.Knows(placed.control->typeName);
    });
}

DataForm *FormFactory::CreateForm(const QString &name, const FieldServices &services, QWidget *parent) {
    auto form = std::make_unique<DataForm>(mCatalogue.form(name), services, parent);
    form->hide();
    form->Build(mRegistry);
    return form.release();
}
