#pragma once

#include "document_shell.h"
#include "file_dialogs.h"
#include "process_values.h"
#include "window_services.h"

#include <QString>

class ErrorReport;

// Runs the file dialogs for the component's data files and keeps the folder last used. Each request returns true if
// the file was handled; false for a cancel, a refusal and a failure, which the component has told.
class clsFileIO {
  public:
    clsFileIO(ProcessValues &process, DocumentShell &shell, FileDialogs &dialogs, MessageBoxes &boxes,
              const Translation &translation, ErrorReport &errors);

    // Writes the data after FinalValidate: under strFileName, after a question where that exists and blnPrompt is
    // true, else under a name from the dialog.
    bool RequestSaveFile(const QString &strFileName, bool blnPrompt = true);
    // Loads strFileName, or with an empty name a file from the dialog. A folder is refused; a missing file is the
    // component's to report.
    bool RequestReadFile(const QString &strFileName);
    // Writes a squirt file under a name from the dialog.
    bool RequestSaveSquirtFile();
    // The load dialog alone: the name chosen, whose folder is kept; "" after a cancel.
    [[nodiscard]] QString ChooseFileToRead();

    // "label(*.ext)|*.ext|"; empty for an extension that has no filter. Case is ignored.
    [[nodiscard]] static QString GetExtensionFilter(const QString &extension);
    // The lines of the preview pane; none where the name is no file or the file has no readable header.
    [[nodiscard]] QList<FileDetail> FileDetails(const QString &fileName) const;
    // The name that the save dialog proposes: that of the loaded file with the right extension, else the model with
    // the radio's serial number.
    [[nodiscard]] QString DefaultFileName() const;

  private:
    [[nodiscard]] FileDialogRequest request(const QString &title, const QString &filter) const;
    [[nodiscard]] FileDialogRequest dataFileRequest(const QString &proposal) const;
    [[nodiscard]] QString modelFileName() const;
    [[nodiscard]] QString dataFolder() const;
    bool mayReplace(const QString &fileName);
    bool saveThroughDialog(const FileDialogRequest &dialog);
    bool write(const QString &fileName, qint32 version);
    void keepFolder(const QString &fileName);
    // The title stands behind the program's.
    void ErrorMessage(const QString &text, const QString &title);

    ProcessValues &mProcess;
    DocumentShell &mShell;
    FileDialogs &mDialogs;
    MessageBoxes &mBoxes;
    const Translation &mTranslation;
    ErrorReport &mErrors;
};
