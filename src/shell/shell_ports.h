#pragma once

#include "iusrfrm.h"

#include <QString>

#include <memory>

class QWidget;
struct FieldServices;

// What the main window needs of its surroundings, as small interfaces; src/app fills them, tests give doubles.

// A form that stands in the right-hand pane. Both pointers name the same object; its parent widget owns it.
struct HostedForm {
    QWidget *widget = nullptr;
    Iusrfrm *form = nullptr;
    QString typeName; // for example "usrctlEconomyKX4600"
};

class FormFactoryInterface {
  public:
    virtual ~FormFactoryInterface() = default;
    // There is such a form, and each of its controls can be made.
    [[nodiscard]] virtual bool CanCreate(const QString &name) = 0;
    // Makes the form of that control name (case ignored), hidden, as a child of parent. An unknown name raises error
    // 35601.
    virtual HostedForm CreateForm(const QString &name, const FieldServices &services, QWidget *parent) = 0;
    // The same form without a window, for a report.
    [[nodiscard]] virtual std::unique_ptr<Iusrfrm> CreateUnseenForm(const QString &name,
                                                                    const FieldServices &services) = 0;
    // Gives the first field the focus; called once, when the form has been made visible.
    virtual void UserControl_Show(const HostedForm &form) = 0;
};

// What the shell does to its own process.
class ProcessControl {
  public:
    virtual ~ProcessControl() = default;
    // Ends the process without any unloading.
    virtual void EndNow(int exitCode) = 0;
    // Stands still; no event runs.
    virtual void Pause(int milliseconds) = 0;
};

// What start-up and tier change ask of the document commands.
class StartUpDocuments {
  public:
    virtual ~StartUpDocuments() = default;
    virtual bool RequestReadFile(const QString &fileName) = 0;
    virtual void InitialiseMRU() = 0;
    virtual void SaveMRUItem() = 0;
};

// The splash window.
class SplashWindow {
  public:
    virtual ~SplashWindow() = default;
    virtual void ShowSplash() = 0;
    // Paints it at once, without letting other events run.
    virtual void RepaintSplash() = 0;
    virtual void UnloadSplash() = 0;
};
