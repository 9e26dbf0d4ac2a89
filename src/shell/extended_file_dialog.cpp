#include "extended_file_dialog.h"

#include "translation.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QGridLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QTreeView>
#include <QVBoxLayout>

namespace {
constexpr int kPreviewWidth = 250;
constexpr QSize kSize(900, 480);
const QString kEveryFile = QStringLiteral("*.*");

// Completes the typed name before the dialog asks whether that file may be replaced.
class SaveDialog final : public QFileDialog {
  public:
    SaveDialog(const FileDialogRequest &request, const QString &title)
        : QFileDialog(request.owner, title, request.folder), mRequest(request) {}

  protected:
    void accept() override {
        completeName();
        QFileDialog::accept();
    }

  private:
    void completeName() {
        auto *name = findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
        const QStringList chosen = selectedFiles();
        if (name == nullptr || name->text().isEmpty() || chosen.isEmpty() || QFileInfo(chosen.constFirst()).isDir())
            return;
        const QString whole = ExtendedFileDialogs::WithExtension(name->text(), mRequest);
        if (whole == name->text())
            return;
        // A file selected in the list would count for more than the name.
        for (QAbstractItemView *list : findChildren<QAbstractItemView *>()) {
            if (list->objectName() == QStringLiteral("listView") || list->objectName() == QStringLiteral("treeView"))
                list->clearSelection();
        }
        name->setText(whole);
    }

    const FileDialogRequest &mRequest;
};

// The list's columns as wide as their texts; the kind of file says nothing that the filter does not say.
void showWholeDates(QFileDialog &dialog) {
    const auto *list = dialog.findChild<QTreeView *>(QStringLiteral("treeView"));
    if (list == nullptr)
        return;
    enum Column { kName, kSizeOfFile, kKind, kModified };
    list->header()->setSectionHidden(kKind, true);
    list->header()->setSectionResizeMode(kName, QHeaderView::Stretch);
    list->header()->setSectionResizeMode(kSizeOfFile, QHeaderView::ResizeToContents);
    list->header()->setSectionResizeMode(kModified, QHeaderView::ResizeToContents);
}

QComboBox *addVersions(QFileDialog &dialog, const FileDialogRequest &request, const QString &caption) {
    auto *grid = qobject_cast<QGridLayout *>(dialog.layout());
    if (request.versions.isEmpty() || grid == nullptr)
        return nullptr;
    auto *versions = new QComboBox(&dialog);
    versions->setObjectName(QStringLiteral("cboVersion"));
    versions->addItems(request.versions);
    versions->setCurrentIndex(request.version - 1);
    auto *label = new QLabel(caption, &dialog);
    label->setBuddy(versions);
    const int row = grid->rowCount();
    grid->addWidget(label, row, 0);
    grid->addWidget(versions, row, 1);
    return versions;
}
} // namespace

ExtendedFileDialogs::ExtendedFileDialogs(const Translation &translation) : mTranslation(translation) {}

QStringList ExtendedFileDialogs::NameFilters(const QString &filter) const {
    QStringList result;
    const QStringList parts = filter.split(u'|', Qt::SkipEmptyParts);
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        const QString label = parts[i].left(parts[i].indexOf(u'(')).trimmed();
        const QString pattern = parts[i + 1] == kEveryFile ? QStringLiteral("*") : parts[i + 1];
        result << QStringLiteral("%1 (%2) (%3)").arg(mTranslation.NLSStr(label), parts[i + 1], pattern);
    }
    return result;
}

QString ExtendedFileDialogs::WithExtension(const QString &fileName, const FileDialogRequest &request) {
    if (request.extension.isEmpty())
        return fileName;
    const QString pattern = QStringLiteral("*.") + QFileInfo(fileName).suffix();
    QStringList patterns = request.filter.split(u'|');
    patterns.removeAll(kEveryFile);
    return patterns.contains(pattern, Qt::CaseInsensitive) ? fileName : fileName + u'.' + request.extension.toLower();
}

std::optional<FileDialogChoice> ExtendedFileDialogs::ShowLoad(const FileDialogRequest &request) {
    QFileDialog dialog(request.owner, mTranslation.NLSStr(request.title), request.folder);
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setFileMode(QFileDialog::ExistingFile);
    return show(dialog, request);
}

std::optional<FileDialogChoice> ExtendedFileDialogs::ShowSave(const FileDialogRequest &request) {
    SaveDialog dialog(request, mTranslation.NLSStr(request.title));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite, !request.overwritePrompt);
    return show(dialog, request);
}

std::optional<FileDialogChoice> ExtendedFileDialogs::show(QFileDialog &dialog, const FileDialogRequest &request) const {
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    dialog.setNameFilters(NameFilters(request.filter));
    addPreview(dialog, request);
    if (!request.fileName.isEmpty())
        dialog.selectFile(request.fileName);
    const QComboBox *versions = addVersions(dialog, request, mTranslation.NLSStr(QStringLiteral("Database &version:")));
    showWholeDates(dialog);
    dialog.resize(kSize);

    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    return FileDialogChoice{.fileName = dialog.selectedFiles().constFirst(),
                            .filterIndex = qint32(dialog.nameFilters().indexOf(dialog.selectedNameFilter())) + 1,
                            .version = versions != nullptr ? versions->currentIndex() + 1 : 0};
}

void ExtendedFileDialogs::addPreview(QFileDialog &dialog, const FileDialogRequest &request) const {
    auto *grid = qobject_cast<QGridLayout *>(dialog.layout());
    if (grid == nullptr || !request.details)
        return;
    const QString caption = mTranslation.NLSStr(QStringLiteral("File details"));
    auto *pane = new QGroupBox(caption, &dialog);
    pane->setFixedWidth(kPreviewWidth);
    auto *preview = new QLabel(pane);
    preview->setObjectName(QStringLiteral("lblFileDetails"));
    preview->setTextFormat(Qt::PlainText);
    preview->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    preview->setWordWrap(true);
    auto *inPane = new QVBoxLayout(pane);
    inPane->addWidget(preview);
    grid->addWidget(pane, 0, grid->columnCount(), grid->rowCount(), 1);

    const auto showDetails = [this, &request, preview](const QString &fileName) {
        QStringList lines;
        for (const FileDetail &line : request.details(fileName))
            lines << mTranslation.NLSStr(line.label) + line.value;
        preview->setText(lines.join(u'\n'));
        preview->setAccessibleDescription(preview->text());
    };
    QObject::connect(&dialog, &QFileDialog::currentChanged, preview, showDetails);
    if (!request.fileName.isEmpty())
        showDetails(QDir(request.folder).filePath(request.fileName));
}
