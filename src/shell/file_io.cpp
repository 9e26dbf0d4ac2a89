#include "file_io.h"

#include "common_error_handler.h"
#include "message_style.h"
#include "product_identity.h"
#include "radio_models.h"
#include "setting.h"
#include "string_utilities.h"
#include "transformer.h"
#include "translation.h"
#include "value_text.h"

#include <QDateTime>
#include <QFileInfo>

#include <array>

namespace {
const QString kAllFiles = QStringLiteral("All Files (*.*)|*.*");

struct ExtensionLabel {
    QLatin1String extension;
    QLatin1String label;
};
constexpr std::array kExtensions{
    ExtensionLabel{QLatin1String("k4p"), QLatin1String("KX4000 Files (*.")},
    ExtensionLabel{QLatin1String("k4c"), QLatin1String("KX4000 Cal Files (*.")},
    ExtensionLabel{QLatin1String("z2p"), QLatin1String("ZB2500 Files (*.")},
    ExtensionLabel{QLatin1String("z2c"), QLatin1String("ZB2500 Cal Files (*.")},
};

QString developmentFilter() {
    return IsExecutingFromIDE() ? QStringLiteral("IDE only ZPA DAT File (*.dat)|*.dat|") : QString();
}

QString shownVersion(const QString &entry) { return entry.mid(entry.indexOf(u'.') + 1); }
} // namespace

clsFileIO::clsFileIO(ProcessValues &process, DocumentShell &shell, FileDialogs &dialogs, MessageBoxes &boxes,
                     const Translation &translation, ErrorReport &errors)
    : mProcess(process), mShell(shell), mDialogs(dialogs), mBoxes(boxes), mTranslation(translation), mErrors(errors) {}

QString clsFileIO::GetExtensionFilter(const QString &extension) {
    for (const ExtensionLabel &known : kExtensions) {
        if (extension.compare(known.extension, Qt::CaseInsensitive) == 0)
            return known.label + extension + QStringLiteral(")|*.") + extension + u'|';
    }
    return {};
}

// The folder last used, or the component's own where there is none or it is gone.
QString clsFileIO::dataFolder() const {
    Transformer &transformer = *mProcess.objTransformer;
    const QString standard = transformer.GetDataDirectory();
    const QString last = ValueText::of(transformer.GetSetting(QStringLiteral("DataDirectory"), standard));
    return QFileInfo(last).isDir() ? last : standard;
}

void clsFileIO::keepFolder(const QString &fileName) {
    mProcess.objTransformer->SaveSetting(QStringLiteral("DataDirectory"), QFileInfo(fileName).absolutePath());
}

FileDialogRequest clsFileIO::request(const QString &title, const QString &filter) const {
    return {.owner = mShell.Window(),
            .title = title,
            .folder = dataFolder(),
            .fileName = {},
            .filter = filter,
            .extension = {},
            .overwritePrompt = Setting::integer(*mProcess.objTransformer, QStringLiteral("GeneralDialogs"), 1) == 1,
            .versions = {},
            .version = 0,
            .details = [this](const QString &fileName) { return FileDetails(fileName); }};
}

FileDialogRequest clsFileIO::dataFileRequest(const QString &proposal) const {
    Transformer &transformer = *mProcess.objTransformer;
    const QString extension = transformer.GetFileExtension().toLower();
    FileDialogRequest dialog =
        request(QStringLiteral("Save File"), GetExtensionFilter(extension) + developmentFilter() + kAllFiles);
    dialog.fileName = proposal;
    dialog.extension = extension;
    if (transformer.GetProgramAsAvailable()) {
        const QStringList versions = transformer.GetFileVersionList();
        for (const QString &version : versions)
            dialog.versions << shownVersion(version);
        dialog.version = qint32(versions.indexOf(transformer.GetFileVersionName())) + 1;
    }
    return dialog;
}

QString clsFileIO::modelFileName() const {
    Transformer &transformer = *mProcess.objTransformer;
    return transformer.GetRadioModel() + u'.' + transformer.GetFileExtension().toLower();
}

QString clsFileIO::DefaultFileName() const {
    Transformer &transformer = *mProcess.objTransformer;
    const QString extension = transformer.GetFileExtension().toLower();
    const QString current = transformer.GetFileName();
    if (!current.isEmpty()) {
        const QFileInfo info(current);
        const bool hasExtension = info.suffix().compare(extension, Qt::CaseInsensitive) == 0;
        return hasExtension ? info.fileName() : info.fileName() + u'.' + extension;
    }
    const QString radio = RadioModels::RadioName(transformer);
    return radio.isEmpty() ? modelFileName() : radio + u'.' + extension;
}

bool clsFileIO::RequestSaveFile(const QString &strFileName, bool blnPrompt) try {
    if (!mProcess.objTransformer->FinalValidate())
        return false;
    if (strFileName.isEmpty())
        return saveThroughDialog(dataFileRequest(DefaultFileName()));
    if (blnPrompt && QFileInfo::exists(strFileName) && !mayReplace(strFileName))
        return saveThroughDialog(dataFileRequest(modelFileName()));
    return write(strFileName, 0);
}
ERROR_TAIL_AS("Iinterrogation_RequestSaveFile", false)

bool clsFileIO::RequestSaveSquirtFile() try {
    if (!mProcess.objTransformer->FinalValidate())
        return false;
    FileDialogRequest dialog =
        request(QStringLiteral("Save File"), QStringLiteral("Squirt Files (*.sqt)|*.sqt|") + kAllFiles);
    dialog.extension = QStringLiteral("sqt");
    return saveThroughDialog(dialog);
}
ERROR_TAIL_AS("RequestSaveFile", false)

bool clsFileIO::mayReplace(const QString &fileName) {
    return mShell.GeneralDialog(QStringLiteral("%0:S already exists. %1:S Do you want to replace it?"),
                                MessageStyle::kYesNo + MessageStyle::kExclamation, QStringLiteral("Save File"),
                                MakeParamString({fileName, QStringLiteral("\n")})) == MessageAnswer::kYes;
}

bool clsFileIO::saveThroughDialog(const FileDialogRequest &dialog) {
    const std::optional<FileDialogChoice> choice = mDialogs.ShowSave(dialog);
    if (!choice || choice->fileName.isEmpty())
        return false;
    keepFolder(choice->fileName);
    return write(choice->fileName, choice->version);
}

bool clsFileIO::write(const QString &fileName, qint32 version) {
    bool saved = false;
    mProcess.objTransformer->SaveFile(fileName, QString(), version, saved);
    return saved;
}

bool clsFileIO::RequestReadFile(const QString &strFileName) try {
    if (!strFileName.isEmpty() && QFileInfo(strFileName).isDir()) {
        ErrorMessage(QStringLiteral("This action is invalid"), QStringLiteral("Procedure Halted"));
        return false;
    }
    const QString fileName = strFileName.isEmpty() ? ChooseFileToRead() : strFileName;
    if (fileName.isEmpty())
        return false;
    // The component tells the format by the content, not by the filter under which the file was chosen.
    mProcess.objTransformer->ReadFile(fileName, 0, 0, false);
    return true;
}
ERROR_TAIL(false)

QString clsFileIO::ChooseFileToRead() {
    const QString extension = mProcess.objTransformer->GetFileExtension();
    const std::optional<FileDialogChoice> choice =
        mDialogs.ShowLoad(request(QStringLiteral("Open File"), GetExtensionFilter(extension) + kAllFiles));
    if (!choice || choice->fileName.isEmpty())
        return {};
    keepFolder(choice->fileName);
    return choice->fileName;
}

QList<FileDetail> clsFileIO::FileDetails(const QString &fileName) const try {
    const QFileInfo info(fileName);
    if (!info.isFile())
        return {};
    QString model;
    QString database;
    QString application;
    QString networks;
    QString comment;
    std::array<QString, 3> reserved;
    bool readable = false;
    mProcess.objTransformer->GetFileDetails(fileName, model, database, application, networks, comment, reserved[0],
                                            reserved[1], reserved[2], readable);
    if (!readable)
        return {};
    QList<FileDetail> lines{
        {QStringLiteral("Date = "), info.lastModified().toString(QStringLiteral("dd/MM/yyyy hh:mm:ss"))},
        {QStringLiteral("Radio Model = "), model},
        {QStringLiteral("Database Version = "), database}};
    if (!application.isEmpty())
        lines << FileDetail{QStringLiteral("Application Version = "), application};
    if (ValueText::toIntegerOr(networks, 0) != 0)
        lines << FileDetail{QStringLiteral("Networks = "), networks};
    return lines;
}
ERROR_TAIL({})

void clsFileIO::ErrorMessage(const QString &text, const QString &title) {
    mBoxes.TranslateMsgBox(text, MessageStyle::kOkOnly + MessageStyle::kCritical,
                           mTranslation.NLSStr(ProductIdentity::title()) + u' ' + mTranslation.NLSStr(title),
                           QString());
}
