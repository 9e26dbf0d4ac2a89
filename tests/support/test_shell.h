#pragma once

#include "window_services.h"

#include <QStringList>

// A main window that only answers what the test has put there.
class TestShell final : public FormShell {
  public:
    qint32 textAlignment = 0;
    bool changingForms = false;
    QString formTypeName = QStringLiteral("usrctlTest");
    QString formTitle = QStringLiteral("Test");
    QWidget *mainWindow = nullptr;
    QStringList told; // ShowWhatsThisHelp, StartDrag, FinishedDrag and SilentMode, a line a call

    [[nodiscard]] qint32 TextAlignment() const override { return textAlignment; }
    [[nodiscard]] bool ChangingForms() const override { return changingForms; }
    [[nodiscard]] QString LoadedFormTypeName() const override { return formTypeName; }
    [[nodiscard]] QString LoadedFormTitle() const override { return formTitle; }
    [[nodiscard]] QWidget *MainWindow() const override { return mainWindow; }
    void ShowWhatsThisHelp(qint32 HelpContextID) override {
        told << QStringLiteral("ShowWhatsThisHelp(%1)").arg(HelpContextID);
    }
    void StartDrag(const QString &id, const QString &typeName) override {
        told << QStringLiteral("StartDrag(%1, %2)").arg(id, typeName);
    }
    void FinishedDrag() override { told << QStringLiteral("FinishedDrag()"); }
    void SilentMode(bool silent) override {
        told << QStringLiteral("SilentMode(%1)").arg(silent ? QStringLiteral("true") : QStringLiteral("false"));
    }
};
