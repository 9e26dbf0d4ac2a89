#pragma once

#include <QtGlobal>

class ClipboardText;
class ErrorReport;
class FormHost;
class Ifield;
class MainMenu;
struct ProcessValues;

// The Edit menu on the field with the focus.
class EditCommands {
  public:
    EditCommands(const ProcessValues &process, const FormHost &host, MainMenu &menu, const ClipboardText &clipboard,
                 ErrorReport &errors);

    // Each time the menu opens.
    void mnuEdit_Click();
    void mnuCut_Click();
    void mnuCopy_Click();
    void mnuPaste_Click();
    void mnuDelete_Click();
    void mnuSelectAll_Click();

  private:
    void run(void (Ifield::*command)());

    const ProcessValues &mProcess;
    const FormHost &mHost;
    MainMenu &mMenu;
    const ClipboardText &mClipboard;
    ErrorReport &mErrors;
};
