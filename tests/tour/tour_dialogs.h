#pragma once

#include "file_dialogs.h"

// File dialogs that answer with one prepared name instead of showing themselves.
class TourDialogs final : public FileDialogs {
  public:
    QString fileName;

    std::optional<FileDialogChoice> ShowLoad(const FileDialogRequest & /*request*/) override { return answer(); }
    std::optional<FileDialogChoice> ShowSave(const FileDialogRequest & /*request*/) override { return answer(); }

  private:
    [[nodiscard]] std::optional<FileDialogChoice> answer() const {
        return FileDialogChoice{.fileName = fileName, .filterIndex = 1, .version = 0};
    }
};
