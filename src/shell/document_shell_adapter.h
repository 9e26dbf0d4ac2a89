#pragma once

#include "document_shell.h"

class ComponentDialogs;
class FilterTabs;
class FormCommands;
class FormHost;
class FormNodes;
class FormPane;
class GreenTicks;
class LoadFailure;
class TreeNavigation;
class WindowTitle;

// The main window as the document and radio commands see it.
class DocumentShellAdapter final : public DocumentShell {
  public:
    struct Parts {
        QWidget &window;
        FormHost &host;
        FormPane &pane;
        FormNodes &nodes;
        FilterTabs &filterTabs;
        TreeNavigation &navigation;
        FormCommands &formCommands;
        GreenTicks &ticks;
        WindowTitle &title;
        ComponentDialogs &dialogs;
        LoadFailure &loadFailure;
    };
    explicit DocumentShellAdapter(const Parts &parts);

    [[nodiscard]] QWidget *Window() const override;
    [[nodiscard]] bool IsFormLoaded() const override;
    bool SaveForm() override;
    bool RevertForm() override;
    bool OpenForm(const QString &usrfrmName, const QString &usrfrmDesc, bool blnDoWeSaveFormImmediately) override;
    void UnloadCurrentForm() override;
    void RevertCurrentField() override;
    void SetFormFrameCaption(const QString &caption) override;
    void ChangeFormTreeNodes(bool blnSaveNow, bool blnForce) override;
    void SetTierNodeGreenTick(bool HighlightForm) override;
    void FocusFormTree() override;
    void SelectNode(qint32 index) override;
    [[nodiscard]] QString NodeText(qint32 index) const override;
    void SelectFirstFilterTab() override;
    void SetUIFormTitle() override;
    void NameRadio() override;
    qint32 GeneralDialog(const QString &Prompt, qint32 Buttons, const QString &Title,
                         const QString &strParameters) override;
    void FailedToLoadDLL(const QString &DllName) override;

  private:
    Parts mParts;
};
