#pragma once

class ErrorReport;
class FormHost;
class FormNodes;
class TreeNavigation;
class Transformer;
struct ProcessValues;

// The commands on the open form.
class FormCommands {
  public:
    FormCommands(Transformer &transformer, const ProcessValues &process, FormHost &host, FormNodes &nodes,
                 TreeNavigation &navigation, ErrorReport &errors);

    void mnuUndo_Click();
    void mnuValidateForm_Click();
    // Opens the form again without saving it.
    void mnuRevertForm_Click();
    void mnuAccept_Click();
    void mnuReject_Click();
    // The Esc key.
    void Form_KeyPress(int KeyAscii);
    // Reverts the field with the focus; nothing without a form.
    void RevertCurrentField();

  private:
    Transformer &mTransformer;
    const ProcessValues &mProcess;
    FormHost &mHost;
    FormNodes &mNodes;
    TreeNavigation &mNavigation;
    ErrorReport &mErrors;
};
