#pragma once

#include <QString>
#include <QStringList>

class ErrorReport;
class MessageBoxes;

// The command line: at most one data file's name.
class CommandLine {
  public:
    // arguments: those that are left after the window system has taken its own, without the program's name.
    CommandLine(const QStringList &arguments, MessageBoxes &boxes, ErrorReport &errors);

    // Remembers the file's name. A text that names an existing file is that name; any other is cut at each "/", and
    // more than one piece is told to the user, with the first piece kept.
    void GetProgramParameters();
    [[nodiscard]] const QString &FileName() const { return mFileName; }

    // Removes a pair of " at the ends, and then, on the result, a pair of '.
    [[nodiscard]] static QString StripOutsideQuotesOffString(const QString &text);

  private:
    QString mText;
    MessageBoxes &mBoxes;
    ErrorReport &mErrors;
    QString mFileName;
};
