#pragma once

#include "report_shell.h"

class BusyPointer;
class FormFactoryInterface;
class FormHost;
class FormNodes;

// The main window as the report dialog sees it.
class ReportForms final : public ReportShell {
  public:
    struct Parts {
        FormFactoryInterface &factory;
        const FormNodes &nodes;
        const FormHost &host;
        BusyPointer &pointer;
    };
    explicit ReportForms(const Parts &parts) : mParts(parts) {}

    [[nodiscard]] std::vector<ReportableForm> Forms() const override;
    [[nodiscard]] QString FormKey(qint32 node) const override;
    [[nodiscard]] std::unique_ptr<Iusrfrm> CreateForm(const QString &key, const FieldServices &services) override;
    void MouseHourglass() override;
    void MouseDefault() override;

  private:
    [[nodiscard]] bool isReportable(qint32 node) const;

    Parts mParts;
};
