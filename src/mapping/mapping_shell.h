#pragma once

#include <QString>

#include <optional>

class QWidget;

// A file that the mapping window asks for.
struct MappingFileRequest {
    QString title;
    QString filter; // "label (*.ext)|*.ext|..."
    bool save = false;
};

// What the mapping window needs of the main window.
class MappingShell {
  public:
    virtual ~MappingShell() = default;
    [[nodiscard]] virtual bool IsFormLoaded() const = 0;
    // Takes what stands in the open form and checks the data as before programming; a refusal has been told.
    virtual bool FinalValidation() = 0;
    virtual void ResetToDefaults() = 0;
    // Nothing when the user cancels.
    virtual std::optional<QString> ChooseFile(const MappingFileRequest &request, QWidget *owner) = 0;
    // The main window, beside which the tool window docks.
    [[nodiscard]] virtual QWidget *Window() const = 0;
};
