#pragma once

#include "mapping_shell.h"

#include <functional>
#include <memory>

class ErrorReport;
class FormHost;
class frmMappingGen;
class MessageBoxes;
class Translation;
struct ProcessValues;

// The main window as the mapping window needs it, and the command that shows that window.
class MappingShellAdapter final : public MappingShell {
  public:
    struct Parts {
        QWidget &window;
        FormHost &host;
        std::function<void()> resetToDefaults;
    };
    MappingShellAdapter(const ProcessValues &process, MessageBoxes &boxes, const Translation &translation,
                        ErrorReport &errors, Parts parts);
    ~MappingShellAdapter() override;
    Q_DISABLE_COPY_MOVE(MappingShellAdapter)

    void mnuMappingsGen_Click();

    [[nodiscard]] bool IsFormLoaded() const override;
    bool FinalValidation() override;
    void ResetToDefaults() override { mParts.resetToDefaults(); }
    std::optional<QString> ChooseFile(const MappingFileRequest &request, QWidget *owner) override;
    [[nodiscard]] QWidget *Window() const override { return &mParts.window; }

  private:
    const ProcessValues &mProcess;
    MessageBoxes &mBoxes;
    const Translation &mTranslation;
    ErrorReport &mErrors;
    Parts mParts;
    std::unique_ptr<frmMappingGen> mMappingWindow;
};
