#pragma once

#include <QString>

class QWidget;

// What the document and radio commands ask of the rest of the main window.
class DocumentShell {
  public:
    virtual ~DocumentShell() = default;

    [[nodiscard]] virtual QWidget *Window() const = 0;
    [[nodiscard]] virtual bool IsFormLoaded() const = 0;
    virtual bool SaveForm() = 0;
    virtual bool RevertForm() = 0;
    virtual bool OpenForm(const QString &usrfrmName, const QString &usrfrmDesc, bool blnDoWeSaveFormImmediately) = 0;
    virtual void UnloadCurrentForm() = 0;
    // Reverts the field that has the focus on the current form, if there is one.
    virtual void RevertCurrentField() = 0;
    // The caption of the frame round the open form, shown as it is.
    virtual void SetFormFrameCaption(const QString &caption) = 0;

    virtual void ChangeFormTreeNodes(bool blnSaveNow, bool blnForce) = 0;
    virtual void SetTierNodeGreenTick(bool HighlightForm) = 0;
    // Gives the tree the focus, so that a field's pending edit is taken, and lets events run.
    virtual void FocusFormTree() = 0;
    // Nodes count from 1; nothing if there is no such node. Runs nothing but the selection.
    virtual void SelectNode(qint32 index) = 0;
    [[nodiscard]] virtual QString NodeText(qint32 index) const = 0;
    // Selects the first filter tab where the tabs show and another one is selected.
    virtual void SelectFirstFilterTab() = 0;

    virtual void SetUIFormTitle() = 0;
    virtual void NameRadio() = 0;
    // The shell's own question, which the user can switch off: then the answer is 6, yes.
    virtual qint32 GeneralDialog(const QString &Prompt, qint32 Buttons, const QString &Title,
                                 const QString &strParameters) = 0;
    virtual void FailedToLoadDLL(const QString &DllName) = 0;
};
