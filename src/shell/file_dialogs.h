#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

class QWidget;

// One line of the preview pane. The label is untranslated English and ends in " = ".
struct FileDetail {
    QString label;
    QString value;
};

// What a file dialog is asked for. Title and filter labels are untranslated English. Filters:
// "label(*.ext)|*.ext|label(*.*)|*.*".
struct FileDialogRequest {
    QWidget *owner = nullptr;
    QString title;
    QString folder;
    QString fileName;
    QString filter;
    QString extension; // of a saved file, without a point
    bool overwritePrompt = false;
    QStringList versions; // entries of the version list; empty: no list is shown
    qint32 version = 0;   // the entry selected at first, from 1; 0 for none
    std::function<QList<FileDetail>(const QString &fileName)> details; // the preview pane of the selected file
};

struct FileDialogChoice {
    QString fileName;       // full path; a saved one has the request's extension or that of another of its filters
    qint32 filterIndex = 0; // from 1
    qint32 version = 0;     // from 1; 0 where no list was shown
};

// The load and save dialogs; a test gives scripted ones. An empty result is a cancel.
class FileDialogs {
  public:
    virtual ~FileDialogs() = default;
    virtual std::optional<FileDialogChoice> ShowLoad(const FileDialogRequest &request) = 0;
    virtual std::optional<FileDialogChoice> ShowSave(const FileDialogRequest &request) = 0;
};
