#include "form_factory_adapter.h"

#include "data_form.h"
#include "unseen_form.h"

bool FormFactoryAdapter::CanCreate(const QString &name) { return mFactory.CanCreate(name); }

HostedForm FormFactoryAdapter::CreateForm(const QString &name, const FieldServices &services, QWidget *parent) {
    DataForm *form = mFactory.CreateForm(name, services, parent);
    return {form, form, form->TypeName()};
}

std::unique_ptr<Iusrfrm> FormFactoryAdapter::CreateUnseenForm(const QString &name, const FieldServices &services) {
    return std::make_unique<UnseenForm>(mFactory.DefinitionOf(name), services);
}

void FormFactoryAdapter::UserControl_Show(const HostedForm &form) {
    if (auto *dataForm = qobject_cast<DataForm *>(form.widget))
        dataForm->UserControl_Show();
}
