#pragma once

#include "window_services.h"

// The main window as a form sees it that is only printed: not in a change of forms, the form itself the loaded one,
// no help and no drag.
class ReportFormShell final : public FormShell {
  public:
    ReportFormShell(QString typeName, QString title) : mTypeName(std::move(typeName)), mTitle(std::move(title)) {}

    [[nodiscard]] qint32 TextAlignment() const override { return 0; }
    [[nodiscard]] bool ChangingForms() const override { return false; }
    [[nodiscard]] QString LoadedFormTypeName() const override { return mTypeName; }
    [[nodiscard]] QString LoadedFormTitle() const override { return mTitle; }
    [[nodiscard]] QWidget *MainWindow() const override { return nullptr; }
    void ShowWhatsThisHelp(qint32 /*HelpContextID*/) override {}
    void StartDrag(const QString & /*id*/, const QString & /*typeName*/) override {}
    void FinishedDrag() override {}
    void SilentMode(bool /*silent*/) override {}

  private:
    QString mTypeName;
    QString mTitle;
};
