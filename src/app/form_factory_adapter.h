#pragma once

#include "form_factory.h"
#include "shell_ports.h"

// The forms as the main window asks for them.
class FormFactoryAdapter final : public FormFactoryInterface {
  public:
    [[nodiscard]] bool CanCreate(const QString &name) override;
    HostedForm CreateForm(const QString &name, const FieldServices &services, QWidget *parent) override;
    [[nodiscard]] std::unique_ptr<Iusrfrm> CreateUnseenForm(const QString &name,
                                                            const FieldServices &services) override;
    void UserControl_Show(const HostedForm &form) override;

  private:
    FormFactory mFactory;
};
