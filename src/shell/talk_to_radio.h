#pragma once

#include "document_shell.h"
#include "interrogation_type.h"
#include "process_values.h"
#include "window_services.h"

#include <functional>

class ErrorReport;

// The radio commands: prepares the open form and then runs the operation in its modal window. A command that comes
// while one is being prepared or runs does nothing.
class clsTalkToRadio {
  public:
    // Shows the modal progress window of an operation and returns when it has closed; true if a radio was read.
    using ProgressWindow = std::function<bool(InterrogationType)>;

    clsTalkToRadio(ProcessValues &process, DocumentShell &shell, MessageBoxes &boxes, ErrorReport &errors,
                   ProgressWindow progressWindow);

    void TalkToRadio(InterrogationType type);
    void mnuInterrogateRadio_Click();
    void mnuRead_Click();
    void mnuProgram_Click();

  private:
    bool prepare(InterrogationType type);
    void openCalibrationForm(bool reload);

    ProcessValues &mProcess;
    DocumentShell &mShell;
    MessageBoxes &mBoxes;
    ErrorReport &mErrors;
    ProgressWindow mProgressWindow;
    bool mRunning = false; // from the preparation to the closed window
};
