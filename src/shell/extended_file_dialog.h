#pragma once

#include "file_dialogs.h"

class QFileDialog;
class Translation;

// The file dialogs of the program: a file dialog with a pane that shows the details of the selected data file and, for
// a save, the list of versions.
class ExtendedFileDialogs final : public FileDialogs {
  public:
    explicit ExtendedFileDialogs(const Translation &translation);

    std::optional<FileDialogChoice> ShowLoad(const FileDialogRequest &request) override;
    std::optional<FileDialogChoice> ShowSave(const FileDialogRequest &request) override;

    // "label(*.ext)|*.ext|..." as a list of name filters, "label(*.ext) (*.ext)", whose last bracket the dialog hides;
    // "*.*" matches every file, also one without a point. The labels are translated.
    [[nodiscard]] QStringList NameFilters(const QString &filter) const;
    // A name to be saved gets the extension, unless it has it or that of another pattern of the filter, in any case.
    [[nodiscard]] static QString WithExtension(const QString &fileName, const FileDialogRequest &request);

  private:
    std::optional<FileDialogChoice> show(QFileDialog &dialog, const FileDialogRequest &request) const;
    void addPreview(QFileDialog &dialog, const FileDialogRequest &request) const;

    const Translation &mTranslation;
};
