#include "document_commands.h"

#include "common_error_handler.h"
#include "message_style.h"
#include "product_identity.h"
#include "transformer.h"

#include <QFileInfo>

namespace {
constexpr qint32 kAskYesNo = MessageStyle::kYesNo + MessageStyle::kExclamation;

// Two names of one file: through links, relative, or of a file that is gone.
bool namesSameFile(const QString &a, const QString &b) {
    const QFileInfo first(a);
    const QFileInfo second(b);
    if (first.absoluteFilePath() == second.absoluteFilePath())
        return true;
    return first.exists() && second.exists() && first.canonicalFilePath() == second.canonicalFilePath();
}
} // namespace

clsDocumentCommands::clsDocumentCommands(ProcessValues &process, DocumentShell &shell, clsFileIO &files,
                                         RecentFilesMenu &menu, MessageBoxes &boxes, ErrorReport &errors)
    : mProcess(process), mShell(shell), mFiles(files), mMenu(menu), mBoxes(boxes), mErrors(errors), mRecent(process) {}

bool clsDocumentCommands::mayLoseFormChanges() {
    return mBoxes.TranslateMsgBox(
               QStringLiteral("This form has outstanding changes.  If you proceed these changes will be lost.  Do you "
                              "wish to proceed?"),
               kAskYesNo, ProductIdentity::title(), QString()) == MessageAnswer::kYes;
}

bool clsDocumentCommands::mayLoseDataChanges(const QString &prompt, qint32 buttons, const QString &title) {
    if (mProcess.objTransformer->GetDataIsDirty())
        return mShell.GeneralDialog(prompt, buttons, title, QStringLiteral("\n")) == MessageAnswer::kYes;
    return !mProcess.objTransformer->GetFormIsDirty() || mayLoseFormChanges();
}

void clsDocumentCommands::finishFileCommand() {
    mShell.SetUIFormTitle();
    mShell.SetTierNodeGreenTick(true);
    SaveMRUItem();
}

void clsDocumentCommands::mnuNew_Click() try { ResetToDefaults(); }
ERROR_TAIL()

void clsDocumentCommands::mnuOpen_Click() try { openFile(QString()); }
ERROR_TAIL()

void clsDocumentCommands::mnuItemsRecent_Click(qint32 Index) try {
    const QString fileName = mRecent.GetFileName(Index);
    if (!fileName.isEmpty()) // damaged settings: an entry without a name
        openFile(fileName);
}
ERROR_TAIL()

void clsDocumentCommands::OpenDropped(const QString &fileName) try {
    mShell.FocusFormTree();
    openFile(fileName);
}
ERROR_TAIL()

void clsDocumentCommands::openFile(const QString &fileName) {
    if (isLoadedFile(fileName)) {
        mnuRevertToSaved_Click();
        return;
    }
    if (mShell.IsFormLoaded() && mProcess.objTransformer->GetFormIsDirty() && !mayLoseFormChanges())
        return;
    if (mShell.RevertForm() && mShell.IsFormLoaded())
        mShell.ChangeFormTreeNodes(false, false);
    const QString chosen = fileName.isEmpty() ? mFiles.ChooseFileToRead() : fileName;
    if (isLoadedFile(chosen))
        mnuRevertToSaved_Click();
    else if (!chosen.isEmpty())
        mFiles.RequestReadFile(chosen);
}

// The component reads the loaded file again without a question, so that one is asked here.
bool clsDocumentCommands::isLoadedFile(const QString &fileName) const {
    const QString loaded = mProcess.objTransformer->GetFileName();
    return !fileName.isEmpty() && !loaded.isEmpty() && namesSameFile(fileName, loaded);
}

void clsDocumentCommands::mnuSave_Click() try { saveUnder(mProcess.objTransformer->GetFileName()); }
ERROR_TAIL()

void clsDocumentCommands::mnuSaveAs_Click() try { saveUnder(QString()); }
ERROR_TAIL()

void clsDocumentCommands::saveUnder(const QString &fileName) {
    if (mShell.SaveForm() && mFiles.RequestSaveFile(fileName))
        finishFileCommand();
}

void clsDocumentCommands::mnuSquirt_Click() try {
    if (mShell.SaveForm() && mFiles.RequestSaveSquirtFile())
        finishFileCommand();
}
ERROR_TAIL()

void clsDocumentCommands::mnuRevertToSaved_Click() try {
    const bool mayLose = mayLoseDataChanges(
        QStringLiteral("You have made changes that have not been saved to a file or a radio.%0:S Do you want to load "
                       "previously saved data, and lose these changes?"),
        kAskYesNo, QStringLiteral("Reverting data"));
    if (!mayLose || !mShell.RevertForm())
        return;
    mFiles.RequestReadFile(mProcess.objTransformer->GetFileName());
    finishFileCommand();
}
ERROR_TAIL()

void clsDocumentCommands::ResetToDefaults() try {
    const bool mayLose =
        !mShell.IsFormLoaded() ||
        mayLoseDataChanges(QStringLiteral("You have made changes that have not been saved to a file or a radio.%0:S Do "
                                          "you want to continue loading new details, and lose these changes?"),
                           MessageStyle::kYesNo + MessageStyle::kQuestion, QStringLiteral("Resetting to defaults"));
    if (!mayLose)
        return;
    mShell.RevertCurrentField();
    mShell.FocusFormTree();
    mShell.UnloadCurrentForm();
    mShell.SelectFirstFilterTab();
    mShell.SelectNode(1);
    mShell.SetFormFrameCaption(QStringLiteral("Reloading"));
    Transformer &transformer = *mProcess.objTransformer;
    transformer.ReloadDefaults(transformer.GetCurrentTier());
    mShell.ChangeFormTreeNodes(false, false);
    transformer.RefreshFormList();
    mShell.SetUIFormTitle();
}
ERROR_TAIL()

void clsDocumentCommands::InitialiseMRU() try { ShowMRUItems(); }
ERROR_TAIL()

void clsDocumentCommands::SaveMRUItem() try {
    const QString fileName = mProcess.objTransformer->GetFileName();
    if (fileName.isEmpty())
        return;
    mRecent.Save(fileName);
    ShowMRUItems();
}
ERROR_TAIL()

void clsDocumentCommands::ShowMRUItems() {
    QStringList captions;
    for (qint32 index = 1; index <= mRecent.Num(); ++index) {
        QString name = mRecent.GetDisplayName(index);
        captions << QStringLiteral("&%1 %2").arg(index).arg(name.replace(u'&', QStringLiteral("&&")));
    }
    mMenu.SetRecentFiles(captions);
}
