#pragma once

#include "document_shell.h"
#include "file_io.h"
#include "mru.h"
#include "process_values.h"
#include "window_services.h"

class ErrorReport;

// Shows the recent files in the File menu.
class RecentFilesMenu {
  public:
    virtual ~RecentFilesMenu() = default;
    // Captions in order, ready to show; none hides the menu.
    virtual void SetRecentFiles(const QStringList &captions) = 0;
};

// The commands of the File menu. Those that save first commit the open form, with the value that still stands in an
// active editor; those that load ask first what may be lost. Naming the loaded file, in whichever way, reverts to it.
class clsDocumentCommands {
  public:
    clsDocumentCommands(ProcessValues &process, DocumentShell &shell, clsFileIO &files, RecentFilesMenu &menu,
                        MessageBoxes &boxes, ErrorReport &errors);

    void mnuNew_Click();
    void mnuOpen_Click();
    void mnuSave_Click();
    void mnuSaveAs_Click();
    void mnuSquirt_Click();
    void mnuRevertToSaved_Click();
    // Entries count from 1.
    void mnuItemsRecent_Click(qint32 Index);
    // A file that was dropped on the window.
    void OpenDropped(const QString &fileName);
    // Loads the defaults after the question about what would be lost.
    void ResetToDefaults();

    void InitialiseMRU();
    void SaveMRUItem();

  private:
    // An empty name asks for one by the dialog.
    void openFile(const QString &fileName);
    [[nodiscard]] bool isLoadedFile(const QString &fileName) const;
    void saveUnder(const QString &fileName);
    void finishFileCommand();
    void ShowMRUItems();
    // The question about the open form's outstanding changes; true: go on.
    bool mayLoseFormChanges();
    bool mayLoseDataChanges(const QString &prompt, qint32 buttons, const QString &title);

    ProcessValues &mProcess;
    DocumentShell &mShell;
    clsFileIO &mFiles;
    RecentFilesMenu &mMenu;
    MessageBoxes &mBoxes;
    ErrorReport &mErrors;
    clsMRU mRecent;
};
