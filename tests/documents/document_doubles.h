#pragma once

#include "call_log.h"
#include "document_commands.h"
#include "document_shell.h"
#include "file_dialogs.h"
#include "recording_transformer.h"
#include "test_services.h"

#include <QTemporaryDir>

#include <optional>

// The rest of the main window: each call becomes a line of the log, "shell.SaveForm()".
class FakeDocumentShell final : public DocumentShell {
  public:
    explicit FakeDocumentShell(CallLog &log) : mLog(log) {}

    bool formLoaded = true;
    bool savesForm = true;
    bool revertsForm = true;
    qint32 generalAnswer = 0;   // of GeneralDialog
    QStringList generalDialogs; // "title [style] text with parameters"

    [[nodiscard]] QWidget *Window() const override { return nullptr; }
    [[nodiscard]] bool IsFormLoaded() const override { return formLoaded; }
    bool SaveForm() override;
    bool RevertForm() override;
    bool OpenForm(const QString &usrfrmName, const QString &usrfrmDesc, bool blnDoWeSaveFormImmediately) override;
    void UnloadCurrentForm() override;
    void RevertCurrentField() override { log("RevertCurrentField"); }
    void SetFormFrameCaption(const QString &caption) override { log("SetFormFrameCaption", {caption}); }
    void ChangeFormTreeNodes(bool blnSaveNow, bool blnForce) override;
    void SetTierNodeGreenTick(bool HighlightForm) override { log("SetTierNodeGreenTick", {HighlightForm}); }
    void FocusFormTree() override { log("FocusFormTree"); }
    void SelectNode(qint32 index) override { log("SelectNode", {index}); }
    [[nodiscard]] QString NodeText(qint32 index) const override { return QStringLiteral("node %1").arg(index); }
    void SelectFirstFilterTab() override { log("SelectFirstFilterTab"); }
    void SetUIFormTitle() override { log("SetUIFormTitle"); }
    void NameRadio() override { log("NameRadio"); }
    qint32 GeneralDialog(const QString &Prompt, qint32 Buttons, const QString &Title,
                         const QString &strParameters) override;
    void FailedToLoadDLL(const QString &DllName) override { log("FailedToLoadDLL", {DllName}); }

  private:
    void log(const char *operation, const QVariantList &arguments = {});
    CallLog &mLog;
};

// File dialogs that answer by script; without an answer they are cancelled.
class ScriptedFileDialogs final : public FileDialogs {
  public:
    explicit ScriptedFileDialogs(CallLog &log) : mLog(log) {}

    std::optional<FileDialogChoice> answer;
    std::optional<FileDialogRequest> request; // of the last dialog

    std::optional<FileDialogChoice> ShowLoad(const FileDialogRequest &asked) override;
    std::optional<FileDialogChoice> ShowSave(const FileDialogRequest &asked) override;

  private:
    CallLog &mLog;
};

class RecordingMenu final : public RecentFilesMenu {
  public:
    QStringList captions;
    void SetRecentFiles(const QStringList &newCaptions) override { captions = newCaptions; }
};

// The document commands with everything round them doubled. Files lie in a folder of their own: fleet.k4p, other.k4p
// and the folder "folder"; "~" stands for that folder in the steps. Settings that are saved are read back.
class DocumentBench {
  public:
    DocumentBench();

    QTemporaryDir folder;
    CallLog log;
    RecordingTransformer component{log};
    TestServices services{&component};
    FakeDocumentShell shell{log};
    ScriptedFileDialogs dialogs{log};
    RecordingMenu menu;
    clsFileIO files{services.process, shell, dialogs, services.boxes, services.translation, services.errors};
    clsDocumentCommands commands{services.process, shell, files, menu, services.boxes, services.errors};

    [[nodiscard]] QString path(const QString &name) const; // "" for ""
    void setSetting(const QString &key, const QVariant &value);
    // What was done, in order, without what was only asked.
    [[nodiscard]] QStringList steps();
};
