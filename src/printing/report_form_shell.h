#pragma once

#include "window_services.h"

// The main window as a form sees it that is only printed: not in a change of forms, the form itself the loaded one,
// no help and no drag.
class ReportFormShell final : public FormShell {
  public:
    ReportFormShell(const FormShell &window, QString typeName, QString title)
        : mWindow(window), mTypeName(std::move(typeName)), mTitle(std::move(title)) {}

    [[nodiscard]] qint32 TextAlignment() const override { return mWindow.TextAlignment(); }
    [[nodiscard]] bool ChangingForms() const override { return false; }
    [[nodiscard]] QString LoadedFormTypeName() const override { return mTypeName; }
    [[nodiscard]] QString LoadedFormTitle() const override { return mTitle; }
    [[nodiscard]] QWidget *MainWindow() const override { return mWindow.MainWindow(); }
    void ShowWhatsThisHelp(qint32 /*HelpContextID*/) override {}
    void StartDrag(const QString & /*id*/, const QString & /*typeName*/) override {}
    void FinishedDrag() override {}
    void SilentMode(bool /*silent*/) override {}

  private:
    const FormShell &mWindow;
    QString mTypeName;
    QString mTitle;
};
