#include "form_factory_adapter.h"

#include "data_form.h"

bool FormFactoryAdapter::CanCreate(const QString &name) { return mFactory.CanCreate(name); }

HostedForm FormFactoryAdapter::CreateForm(const QString &name, const FieldServices &services, QWidget *parent) {
    DataForm *form = mFactory.CreateForm(name, services, parent);
    return {form, form, form->TypeName()};
}

void FormFactoryAdapter::UserControl_Show(const HostedForm &form) {
    if (auto *dataForm = qobject_cast<DataForm *>(form.widget))
        dataForm->UserControl_Show();
}
