#include "form_factory.h"

#include "data_form.h"
#include "fld_sub_form_call_up.h"

#include <algorithm>

namespace {
const QString kCalibration = QStringLiteral("usrctlCalSpecifications");
}

FormFactory::FormFactory() {
    mCalibration.name = kCalibration;
    mCalibration.enabler.name = QStringLiteral("ctlFormEnabler1");
    mCalibration.enabler.typeName = QStringLiteral("ctlFormEnabler");
    mCalibration.enabler.properties.insert(QStringLiteral("Caption"), QStringLiteral("Enabler"));
    mRegistry.Add(QStringLiteral("fldSubFormCallUp"),
                  [this](const FieldServices &services, const FieldProperties &properties, QWidget *parent) {
                      return new fldSubFormCallUp(services, properties, mSubForms, parent);
                  });
}

bool FormFactory::isKnown(const QString &name) const {
    return mCatalogue.contains(name) || name.compare(kCalibration, Qt::CaseInsensitive) == 0;
}

const FormDefinition &FormFactory::DefinitionOf(const QString &name) {
    return name.compare(kCalibration, Qt::CaseInsensitive) == 0 ? mCalibration : mCatalogue.form(name);
}

bool FormFactory::CanCreate(const QString &name) {
    if (!isKnown(name))
        return false;
    return std::ranges::all_of(DefinitionOf(name).placedControls(), [&](const PlacedControl &placed) {
        return placed.control->typeName == u"SSTab" || mRegistry.Knows(placed.control->typeName);
    });
}

DataForm *FormFactory::CreateForm(const QString &name, const FieldServices &services, QWidget *parent) {
    auto form = std::make_unique<DataForm>(DefinitionOf(name), services, parent);
    form->hide();
    form->Build(mRegistry);
    return form.release();
}
