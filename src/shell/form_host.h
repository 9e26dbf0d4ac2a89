#pragma once

#include "shell_ports.h"

#include <QString>

class BusyPointer;
class ErrorReport;
class FormNodes;
class FormPane;
class GreenTicks;
class MessageBoxes;
class PaneLayout;
class Transformer;
class Translation;
struct FieldServices;
struct ProcessValues;

// Opens, saves, reverts and closes the one open form. A form holds no data: it is built anew at each visit.
class FormHost {
  public:
    struct Parts {
        FormFactoryInterface &factory;
        FormPane &pane;
        PaneLayout &layout;
        FormNodes &nodes;
        GreenTicks &ticks;
        BusyPointer &pointer;
    };
    // services goes to the forms.
    FormHost(const FieldServices &services, const Parts &parts);

    // False for a form that this program cannot build.
    [[nodiscard]] bool CanOpen(const QString &usrfrmName) const;
    // True if the form stands open. False at once while another form is being opened.
    bool OpenForm(const QString &usrfrmName, const QString &usrfrmDesc, bool blnDoWeSaveFormImmediately);
    // Saves or reverts first; true if no form stands open afterwards.
    bool CloseForm(bool SaveNow);
    // True if the form's data were accepted; false also when no form is open.
    bool SaveForm();
    // Undoes the open form's changes in the data; the fields take their old values from the component's updates.
    bool RevertForm();
    // False when no form is open.
    bool ValidateForm();
    // Takes the form away without saving; ends its links if that has not happened.
    void UnloadCurrentForm();
    // The calibration route: no entry in the tree stands for this form.
    void ChangeToSpecificationsForm();

    [[nodiscard]] bool IsFormLoaded() const;
    [[nodiscard]] const HostedForm &LoadedUsrControl() const;
    [[nodiscard]] bool ChangingForms() const { return mChangingForms; }

  private:
    void buildForm(const QString &usrfrmName, const QString &usrfrmDesc);
    bool OpenFormFailed();
    bool CloseFormFailed();
    void terminateForm();

    const FieldServices &mServices;
    Parts mParts;
    ProcessValues &mProcess;
    MessageBoxes &mBoxes;
    ErrorReport &mErrors;
    bool mChangingForms = false;
    bool mTerminated = true;
};
