#include "document_doubles.h"

#include "message_style.h"
#include "translation.h"

#include <QDir>
#include <QFile>

namespace {
bool onlyAsks(const QString &line) { return line.startsWith(QStringLiteral("Get")); }
} // namespace

void FakeDocumentShell::log(const char *operation, const QVariantList &arguments) {
    mLog.add(QStringLiteral("shell.") + QString::fromLatin1(operation), arguments);
}

bool FakeDocumentShell::SaveForm() {
    log("SaveForm");
    return savesForm;
}

bool FakeDocumentShell::RevertForm() {
    log("RevertForm");
    return revertsForm;
}

bool FakeDocumentShell::OpenForm(const QString &usrfrmName, const QString &usrfrmDesc,
                                 bool blnDoWeSaveFormImmediately) {
    log("OpenForm", {usrfrmName, usrfrmDesc, blnDoWeSaveFormImmediately});
    return true;
}

void FakeDocumentShell::UnloadCurrentForm() {
    log("UnloadCurrentForm");
    formLoaded = false;
}

void FakeDocumentShell::ChangeFormTreeNodes(bool blnSaveNow, bool blnForce) {
    log("ChangeFormTreeNodes", {blnSaveNow, blnForce});
}

qint32 FakeDocumentShell::GeneralDialog(const QString &Prompt, qint32 Buttons, const QString &Title,
                                        const QString &strParameters) {
    generalDialogs << QStringLiteral("%1 [%2] ").arg(Title).arg(Buttons) +
                          Translation::Fill(Prompt, strParameters.split(u'|'));
    if (generalAnswer == MessageAnswer::kNone)
        failTest(QStringLiteral("unexpected question: ") + generalDialogs.last());
    return generalAnswer;
}

std::optional<FileDialogChoice> ScriptedFileDialogs::ShowLoad(const FileDialogRequest &asked) {
    mLog.add(QStringLiteral("ShowLoad"));
    request = asked;
    return answer;
}

std::optional<FileDialogChoice> ScriptedFileDialogs::ShowSave(const FileDialogRequest &asked) {
    mLog.add(QStringLiteral("ShowSave"), {asked.fileName});
    request = asked;
    return answer;
}

DocumentBench::DocumentBench() {
    for (const char *name : {"fleet.k4p", "other.k4p"}) {
        QFile file(path(QString::fromLatin1(name)));
        if (!file.open(QIODevice::WriteOnly))
            failTest(QStringLiteral("no test file"));
    }
    QDir(folder.path()).mkdir(QStringLiteral("folder"));
    component.when(QStringLiteral("GetRadioModel")).answers(QStringLiteral("KX4600"));
    component.when(QStringLiteral("GetFileExtension")).answers(QStringLiteral("K4P"));
    component.when(QStringLiteral("GetCurrentTier")).answers(QStringLiteral("Standard"));
    component.when(QStringLiteral("GetDataDirectory")).answers(folder.path());
    component.when(QStringLiteral("SaveSetting")).runs([this] {
        const QString call = log.lines().last();
        const qsizetype comma = call.indexOf(QStringLiteral(", "));
        const qsizetype begin = call.indexOf(u'(') + 1;
        setSetting(call.mid(begin, comma - begin), call.mid(comma + 2).chopped(1));
    });
}

QString DocumentBench::path(const QString &name) const {
    return name.isEmpty() || name.startsWith(u'/') ? name : folder.filePath(name);
}

void DocumentBench::setSetting(const QString &key, const QVariant &value) {
    component.when(QStringLiteral("GetSetting"), key).answers(value);
}

QStringList DocumentBench::steps() {
    QStringList result;
    for (QString line : log.take()) {
        if (!onlyAsks(line))
            result << line.replace(folder.path(), QStringLiteral("~"));
    }
    return result;
}
