#pragma once

#include <QStringList>

#include <functional>
#include <memory>

class ErrorReport;
class FileDialogs;
class frmMain;
class MessageBoxes;
class Transformer;

// What a test or the tour puts in place of the program's own. Not owned; null: the program's own.
struct ProgramReplacements {
    FileDialogs *fileDialogs = nullptr;
    MessageBoxes *boxes = nullptr;
    std::function<std::unique_ptr<Transformer>()> component = {};
};

// The whole program, wired together: the one place where everything meets. Made after the application object.
class MainProgram {
  public:
    // arguments: the command line without the program's name.
    MainProgram(ErrorReport &errors, const QStringList &arguments, const ProgramReplacements &replacements = {});
    ~MainProgram();
    Q_DISABLE_COPY_MOVE(MainProgram)

    // Loads the component, starts it and shows the window. False after a failure that has been told.
    bool Start();
    // Runs until the window has closed; the process's exit code.
    int Run();
    // Only after a successful Start().
    [[nodiscard]] frmMain &Window() const;
    [[nodiscard]] Transformer &Component() const;

  private:
    struct Parts;
    std::unique_ptr<Parts> mParts;
};
